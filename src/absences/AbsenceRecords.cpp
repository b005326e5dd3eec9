#include "absences/AbsenceRecords.h"

#include "absences/AbsenceColumns.h"
#include "runtime/RunTimeError.h"
#include "runtime/TimeOfDay.h"

#include <algorithm>
#include <cstdint>

namespace absences
{
namespace
{

using db::Value;
using plan::Marqueur;

// Students are identified by at most this many characters of their name.
constexpr int kIdentLength = 15;

Value number(std::int64_t value)
{
    return Value(value);
}

/// Which record is at fault, for the user.
QString recordName(const QString& kind, const Marqueur& marker, const QString& className)
{
    return kind + QStringLiteral(" de la classe « ") + className + QStringLiteral(" » (") +
           marker.Jour.toString(QStringLiteral("dd/MM/yyyy")) + QStringLiteral(", ") +
           marker.Debut + QStringLiteral(", salle ") + marker.Salle + u')';
}

QString classRecordName(const Marqueur& marker, const QString& className)
{
    return recordName(QStringLiteral("l’absence"), marker, className);
}

QString studentRecordName(const Marqueur& marker, const QString& className)
{
    return recordName(QStringLiteral("l’absence d’étudiants"), marker, className);
}

// What was being done when something failed.

QString searching(const QString& record)
{
    return QStringLiteral("Recherche de ") + record;
}

QString removing(const QString& record)
{
    return QStringLiteral("Retrait de ") + record;
}

QString adding(const QString& record)
{
    return QStringLiteral("Enregistrement de ") + record;
}

} // namespace

QString endTime(const QString& start, int minutes)
{
    using runtime::kMinutesOfDay;
    // Added twice: the remainder of a negative number is negative.
    const int end =
        (runtime::endMinute(start, minutes) % kMinutesOfDay + kMinutesOfDay) % kMinutesOfDay;
    return QStringLiteral("%1:%2")
        .arg(end / 60, 2, 10, QChar(u'0'))
        .arg(end % 60, 2, 10, QChar(u'0'));
}

QString AbsenceRecords::classSearch(const Marqueur& marker, const QString& className) const
{
    const db::SqlDialect dialect = m_database.dialect();
    return QStringLiteral(" Select * from ") + table::kAbscence + QStringLiteral(" Where ") +
           column::kClasse + u'=' + dialect.literal(className) + QStringLiteral(" and ") +
           column::kDatex + u'=' + dialect.dateLiteral(marker.Jour) + QStringLiteral(" and ") +
           column::kDebut + u'=' + dialect.literal(marker.Debut);
}

QString AbsenceRecords::studentSearch(const Marqueur& marker, const QString& className,
                                      const QString& blanks, const QString& name) const
{
    const db::SqlDialect dialect = m_database.dialect();
    return QStringLiteral(" Select * from ") + table::kEtudAbs + QStringLiteral(" Where ") +
           column::kClasse + u'=' + dialect.literal(className) + blanks + QStringLiteral("and ") +
           column::kNom + u'=' + dialect.literal(name) + QStringLiteral(" and ") + column::kJour +
           u'=' + dialect.dateLiteral(marker.Jour) + QStringLiteral(" and ") + column::kHeureD +
           u'=' + dialect.literal(marker.Debut);
}

QString AbsenceRecords::studentSearch(const Marqueur& marker, const QString& className,
                                      const QString& name) const
{
    return studentSearch(marker, className, QStringLiteral(" "), name);
}

bool AbsenceRecords::holds(const QStringList& names) const
{
    const db::SqlDialect dialect = m_database.dialect();
    return std::all_of(names.begin(), names.end(),
                       [&dialect](const QString& name) { return dialect.holds(name); });
}

bool AbsenceRecords::exists(const QString& search)
{
    return !m_database.Db().open(search).isEmpty();
}

bool AbsenceRecords::Existe_AbsClasse(const Marqueur& marker, const QString& className)
{
    return exists(classSearch(marker, className));
}

bool AbsenceRecords::Existe_AbsEtud(const Marqueur& marker, const QString& className,
                                    const QString& name)
{
    return exists(studentSearch(marker, className, name));
}

bool AbsenceRecords::removeFirst(const Removal& removal)
{
    // Searched for first: whoever may not remove records can still add one.
    const db::Recordset found =
        runtime::during(searching(removal.record), [&] { return m_database.read(removal.search); });
    if (found.isEmpty()) {
        return false;
    }
    return runtime::during(removing(removal.record), [&] {
        // A name whose quotes are not its own may make the search find anybody's record.
        if (!removal.isHeld && found.first().field(column::kClasse).toText() != removal.className) {
            throw runtime::RunTimeError(
                runtime::ErrorNumber::StatementRefused,
                QStringLiteral("The record found belongs to another class."));
        }
        return m_database.Db().deleteFirst(removal.search);
    });
}

void AbsenceRecords::Basculer_AbsClasse(Marqueur& marker, const QString& className)
{
    ++m_toggles;
    const QString record = classRecordName(marker, className);
    const bool removed = removeFirst(
        {classSearch(marker, className), record, className, holds({className, marker.Debut})});
    if (!removed) {
        runtime::during(adding(record), [&] { addClass(marker, className); });
    }
    marker.AbsClasse = !removed;
}

void AbsenceRecords::addClass(const Marqueur& marker, const QString& className)
{
    // The séance types that the lookup does not keep are 0.
    m_database.Db().insert(table::kAbscence, {{column::kClasse, Value(className)},
                                              {column::kSeance, Value(marker.Seance)},
                                              {column::kTranche, number(marker.Tranche)},
                                              {column::kMatiere, Value(marker.Matiere)},
                                              {column::kSalle, Value(marker.Salle)},
                                              {column::kEnseignant1, Value(marker.Enseignant1)},
                                              {column::kNewNature, Value(marker.newnature)},
                                              {column::kTypeS1, number(marker.TypeS1)},
                                              {column::kTypeS2, number(0)},
                                              {column::kTypeS3, number(0)},
                                              {column::kTypeS1B, number(0)},
                                              {column::kTypeS2B, number(0)},
                                              {column::kTypeS3B, number(marker.TypeS3B)},
                                              {column::kDuree, number(marker.Duree)},
                                              {column::kCommune, Value(marker.Commune)},
                                              {column::kDebut, Value(marker.Debut)},
                                              {column::kDatex, Value(marker.Jour)},
                                              {column::kChoix, number(marker.Choix)}});
}

void AbsenceRecords::Basculer_AbsEtud(Marqueur& marker, const QString& className,
                                      const QString& name)
{
    ++m_toggles;
    const QString record = studentRecordName(marker, className);
    // Two blanks before "and", where the test has one: both find the same rows.
    const bool removed = removeFirst({studentSearch(marker, className, QStringLiteral("  "), name),
                                      record, className, holds({className, name, marker.Debut})});
    if (!removed) {
        runtime::during(adding(record), [&] { addStudent(marker, className, name); });
    }
    marker.AbsEtud = !removed;
}

void AbsenceRecords::addStudent(const Marqueur& marker, const QString& className,
                                const QString& name)
{
    m_database.Db().insert(table::kEtudAbs,
                           {{column::kClasse, Value(className)},
                            {column::kNom, Value(name)},
                            {column::kSeance, Value(marker.Seance)},
                            {column::kTranche, number(marker.Tranche)},
                            {column::kMatiere, Value(marker.Matiere)},
                            {column::kHeureD, Value(marker.Debut)},
                            {column::kHeureF, Value(endTime(marker.Debut, marker.Duree))},
                            {column::kJour, Value(marker.Jour)},
                            {column::kIdent, Value(name.left(kIdentLength))}});
}

} // namespace absences
