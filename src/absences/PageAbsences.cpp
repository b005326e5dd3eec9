#include "absences/PageAbsences.h"

#include "absences/AbsenceColumns.h"

#include <algorithm>

namespace absences
{
namespace
{

constexpr int kClasses = 1;
constexpr int kStudents = 2;

} // namespace

void PageAbsences::prepare(const plan::AbsenceQuestions& questions)
{
    m_togglesBefore = m_plain.toggleCount();
    m_date = questions.date;
    m_classNames = m_database.dialect().askable(questions.classNames);
    m_starts = m_database.dialect().askable(questions.starts);
    m_classesAsked = QSet<QString>(m_classNames.begin(), m_classNames.end());
    m_classes.reset();
    m_students.reset();
    m_tables.clear();
    if (m_classNames.isEmpty() || m_starts.isEmpty()) {
        return;
    }
    fetch({kClasses, kStudents});
    if (!m_classes || !m_students) { // one of the tables may be missing
        fetch({kClasses});
        fetch({kStudents});
    }
}

/// The records of one table, as "Select" with its kind and its masks in front. A record of a class
/// has no name; what stands in that place is not looked at.
QString PageAbsences::query(int kind) const
{
    const db::SqlDialect dialect = m_database.dialect();
    const db::MatchMasks classes(column::kClasse, m_classNames, dialect);
    const db::MatchMasks names(column::kNom, m_classNames, dialect);
    const bool ofClasses = kind == kClasses;
    const db::MatchMasks starts(ofClasses ? column::kDebut : column::kHeureD, m_starts, dialect);
    QString nameMasks = names.selectList(QStringLiteral("tempora_n"));
    if (ofClasses) {
        nameMasks = QStringLiteral("0") + QStringLiteral(", 0").repeated(names.columnCount() - 1);
    }
    const QString recorded = ofClasses ? table::kAbscence : table::kEtudAbs;
    const QString day = ofClasses ? column::kDatex : column::kJour;
    return QStringLiteral("Select ") + QString::number(kind) + QStringLiteral(" as tempora_t, ") +
           classes.selectList(QStringLiteral("tempora_c")) + QStringLiteral(", ") + nameMasks +
           QStringLiteral(", ") + starts.selectList(QStringLiteral("tempora_s")) +
           QStringLiteral(" from ") + recorded + QStringLiteral(" Where ") + day + u'=' +
           dialect.dateLiteral(m_date) + QStringLiteral(" and ") + classes.anyOf();
}

/// Fetches the records of these kinds; after a failure nothing is known of them.
void PageAbsences::fetch(const std::vector<int>& kinds)
{
    const bool fetched = db::skipWhenRefused([&] {
        QStringList queries;
        for (const int kind : kinds) {
            queries << query(kind);
        }
        const db::Recordset found =
            m_database.Db().open(queries.join(QStringLiteral(" union all ")));
        std::map<int, Recorded> recorded;
        for (const int kind : kinds) {
            recorded[kind] = {};
        }
        for (const db::Row& row : found.rows()) {
            const int kind = row.field(0).toInt32();
            keep(row, kind, recorded.at(kind));
        }
        for (auto& [kind, records] : recorded) {
            (kind == kClasses ? m_classes : m_students) = std::move(records);
        }
    });
    if (!fetched && kinds.size() == 1) {
        m_tables[kinds.front()].suspect();
    }
}

void PageAbsences::keep(const db::Row& row, int kind, Recorded& recorded) const
{
    const db::MatchMasks names({}, m_classNames);
    const db::MatchMasks starts({}, m_starts);
    const int firstName = 1 + names.columnCount();
    const std::vector<int> named = names.matches(row, firstName);
    for (const int name : names.matches(row, 1)) {
        // A record that names somebody else is about a single student, not about the class.
        if (kind == kStudents && std::find(named.begin(), named.end(), name) == named.end()) {
            continue;
        }
        for (const int start : starts.matches(row, firstName + names.columnCount())) {
            recorded.insert({m_classNames[name], m_starts[start]});
        }
    }
}

bool PageAbsences::isPrepared(const plan::Marqueur& marker, const QString& className) const
{
    return m_plain.toggleCount() == m_togglesBefore && marker.Jour == m_date &&
           m_classesAsked.contains(className) && m_starts.contains(marker.Debut);
}

bool PageAbsences::Existe_AbsClasse(const plan::Marqueur& marker, const QString& className)
{
    if (m_classes && isPrepared(marker, className)) {
        return m_classes->contains({className, marker.Debut});
    }
    return m_tables[kClasses].ask(
        {{className, marker.Debut}, m_plain.classSearch(marker, className), {}},
        m_database.dialect(), [&] { return m_plain.Existe_AbsClasse(marker, className); });
}

bool PageAbsences::Existe_AbsEtud(const plan::Marqueur& marker, const QString& className,
                                  const QString& name)
{
    if (m_students && className == name && isPrepared(marker, className)) {
        return m_students->contains({className, marker.Debut});
    }
    return m_tables[kStudents].ask(
        {{className, name, marker.Debut}, m_plain.studentSearch(marker, className, name), {}},
        m_database.dialect(), [&] { return m_plain.Existe_AbsEtud(marker, className, name); });
}

} // namespace absences
