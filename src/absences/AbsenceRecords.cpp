#include "absences/AbsenceRecords.h"

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
    constexpr int kMinutesOfDay = 24 * 60;
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
    return QStringLiteral(" Select * from abscence Where Classe=") + dialect.literal(className) +
           QStringLiteral(" and Datex=") + dialect.dateLiteral(marker.Jour) +
           QStringLiteral(" and Debut=") + dialect.literal(marker.Debut);
}

QString AbsenceRecords::studentSearch(const Marqueur& marker, const QString& className,
                                      const QString& andName, const QString& name) const
{
    const db::SqlDialect dialect = m_database.dialect();
    return QStringLiteral(" Select * from etud_abs Where Classe=") + dialect.literal(className) +
           andName + dialect.literal(name) + QStringLiteral(" and Jour=") +
           dialect.dateLiteral(marker.Jour) + QStringLiteral(" and HeureD=") +
           dialect.literal(marker.Debut);
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
    return exists(studentSearch(marker, className, QStringLiteral(" and Nom="), name));
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
        if (!removal.isHeld &&
            found.first().field(QStringLiteral("Classe")).toText() != removal.className) {
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
    m_database.Db().insert(QStringLiteral("abscence"),
                           {{QStringLiteral("Classe"), Value(className)},
                            {QStringLiteral("Seance"), Value(marker.Seance)},
                            {QStringLiteral("Tranche"), number(marker.Tranche)},
                            {QStringLiteral("matière"), Value(marker.Matiere)},
                            {QStringLiteral("Salle"), Value(marker.Salle)},
                            {QStringLiteral("Enseignant1"), Value(marker.Enseignant1)},
                            {QStringLiteral("newnature"), Value(marker.newnature)},
                            {QStringLiteral("TypeS1"), number(marker.TypeS1)},
                            {QStringLiteral("TypeS2"), number(0)},
                            {QStringLiteral("TypeS3"), number(0)},
                            {QStringLiteral("TypeS1B"), number(0)},
                            {QStringLiteral("TypeS2B"), number(0)},
                            {QStringLiteral("TypeS3B"), number(marker.TypeS3B)},
                            {QStringLiteral("Durée"), number(marker.Duree)},
                            {QStringLiteral("Commune"), Value(marker.Commune)},
                            {QStringLiteral("Debut"), Value(marker.Debut)},
                            {QStringLiteral("Datex"), Value(marker.Jour)},
                            {QStringLiteral("Choix"), number(marker.Choix)}});
}

void AbsenceRecords::Basculer_AbsEtud(Marqueur& marker, const QString& className,
                                      const QString& name)
{
    ++m_toggles;
    const QString record = studentRecordName(marker, className);
    // Two blanks before "and", where the test has one: both find the same rows.
    const bool removed =
        removeFirst({studentSearch(marker, className, QStringLiteral("  and Nom="), name), record,
                     className, holds({className, name, marker.Debut})});
    if (!removed) {
        runtime::during(adding(record), [&] { addStudent(marker, className, name); });
    }
    marker.AbsEtud = !removed;
}

void AbsenceRecords::addStudent(const Marqueur& marker, const QString& className,
                                const QString& name)
{
    m_database.Db().insert(QStringLiteral("etud_abs"),
                           {{QStringLiteral("Classe"), Value(className)},
                            {QStringLiteral("Nom"), Value(name)},
                            {QStringLiteral("Seance"), Value(marker.Seance)},
                            {QStringLiteral("Tranche"), number(marker.Tranche)},
                            {QStringLiteral("matière"), Value(marker.Matiere)},
                            {QStringLiteral("HeureD"), Value(marker.Debut)},
                            {QStringLiteral("HeureF"), Value(endTime(marker.Debut, marker.Duree))},
                            {QStringLiteral("Jour"), Value(marker.Jour)},
                            {QStringLiteral("Ident"), Value(name.left(kIdentLength))}});
}

} // namespace absences
