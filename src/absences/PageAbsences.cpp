#include "absences/PageAbsences.h"

#include "runtime/RunTimeError.h"

#include <algorithm>

namespace absences
{
void PageAbsences::prepare(const plan::AbsenceQuestions& questions)
{
    m_togglesBefore = m_plain.toggleCount();
    m_date = questions.date;
    m_classNames = db::plainLiterals(questions.classNames);
    m_starts = db::plainLiterals(questions.starts);
    m_classes.reset();
    m_students.reset();
    if (!m_classNames.isEmpty() && !m_starts.isEmpty()) {
        runtime::skipOnError([this] { fetchClasses(); });
        runtime::skipOnError([this] { fetchStudents(); });
    }
}

void PageAbsences::fetchClasses()
{
    const db::MatchMasks classes(QStringLiteral("Classe"), m_classNames);
    const db::MatchMasks starts(QStringLiteral("Debut"), m_starts);
    const db::Recordset found = m_database.Db().open(
        QStringLiteral("Select ") + classes.selectList(QStringLiteral("tempora_c")) +
        QStringLiteral(", ") + starts.selectList(QStringLiteral("tempora_s")) +
        QStringLiteral(" from abscence Where Datex=") + m_database.dialect().dateLiteral(m_date) +
        QStringLiteral(" and ") + classes.anyOf());
    Recorded recorded;
    for (const db::Row& row : found.rows()) {
        for (const int name : classes.matches(row, 0)) {
            for (const int start : starts.matches(row, classes.columnCount())) {
                recorded.insert({m_classNames[name], m_starts[start]});
            }
        }
    }
    m_classes = std::move(recorded);
}

void PageAbsences::fetchStudents()
{
    const db::MatchMasks classes(QStringLiteral("Classe"), m_classNames);
    const db::MatchMasks names(QStringLiteral("Nom"), m_classNames);
    const db::MatchMasks starts(QStringLiteral("HeureD"), m_starts);
    const db::Recordset found = m_database.Db().open(
        QStringLiteral("Select ") + classes.selectList(QStringLiteral("tempora_c")) +
        QStringLiteral(", ") + names.selectList(QStringLiteral("tempora_n")) +
        QStringLiteral(", ") + starts.selectList(QStringLiteral("tempora_s")) +
        QStringLiteral(" from etud_abs Where Jour=") + m_database.dialect().dateLiteral(m_date) +
        QStringLiteral(" and ") + classes.anyOf());
    Recorded recorded;
    for (const db::Row& row : found.rows()) {
        const std::vector<int> named = names.matches(row, classes.columnCount());
        for (const int name : classes.matches(row, 0)) {
            if (std::find(named.begin(), named.end(), name) == named.end()) {
                continue; // about a single student, not about the class
            }
            for (const int start :
                 starts.matches(row, classes.columnCount() + names.columnCount())) {
                recorded.insert({m_classNames[name], m_starts[start]});
            }
        }
    }
    m_students = std::move(recorded);
}

bool PageAbsences::isPrepared(const plan::Marqueur& marker, const QString& className) const
{
    return m_plain.toggleCount() == m_togglesBefore && marker.Jour == m_date &&
           m_classNames.contains(className) && m_starts.contains(marker.Debut);
}

bool PageAbsences::Existe_AbsClasse(const plan::Marqueur& marker, const QString& className)
{
    if (m_classes && isPrepared(marker, className)) {
        return m_classes->contains({className, marker.Debut});
    }
    return m_plain.Existe_AbsClasse(marker, className);
}

bool PageAbsences::Existe_AbsEtud(const plan::Marqueur& marker, const QString& className,
                                  const QString& name)
{
    if (m_students && className == name && isPrepared(marker, className)) {
        return m_students->contains({className, marker.Debut});
    }
    return m_plain.Existe_AbsEtud(marker, className, name);
}

} // namespace absences
