#include "setup/Findings.h"

#include "absences/AbsenceColumns.h"
#include "runtime/RunTimeError.h"
#include "timetable/MeetingColumns.h"
#include "timetable/SchoolColumns.h"

#include <QLocale>
#include <algorithm>

namespace setup
{
namespace
{

namespace table = timetable::table;

int numberOf(db::Connection& connection, const QString& sql)
{
    const db::Recordset found = connection.open(sql);
    return found.rows().empty() ? 0
                                : found.rows().front().field(QStringLiteral("n")).toText().toInt();
}

int countOf(db::Connection& connection, const QString& table)
{
    return runtime::during(QStringLiteral("Lecture de la table « %1 »").arg(table), [&] {
        return numberOf(connection, QStringLiteral("select count(*) as n from ") + table);
    });
}

/// Asks for rights by statements that meet no row: they are refused without them, and change
/// nothing with them.
bool mayWrite(db::Connection& connection, const QString& table)
{
    return runtime::skipOnError([&] {
        connection.execute(QStringLiteral("delete from %1 where 1=0").arg(table));
        connection.execute(QStringLiteral("insert into %1 select * from %1 where 1=0").arg(table));
    });
}

bool holdsApostrophe(db::Connection& connection, const QString& table, const QString& column)
{
    return numberOf(connection, QStringLiteral("select count(*) as n from %1 where %2 like '%''%'")
                                    .arg(table, column)) > 0;
}

QDate lastDayIn(db::Connection& connection)
{
    QDate last;
    const db::Recordset periods =
        connection.open(QStringLiteral("select * from ") + table::kTrancheTable);
    for (const db::Row& period : periods.rows()) {
        runtime::skipOnError([&] {
            const QDate end = period.field(timetable::position::kLastDay).toDate();
            last = last.isValid() ? std::max(last, end) : end;
        });
    }
    return last;
}

QString counted(int number, const QString& one, const QString& many)
{
    const QLocale french(QLocale::French, QLocale::France);
    return french.toString(number) + u' ' + (number < 2 ? one : many);
}

} // namespace

Findings lookInto(db::Connection& connection)
{
    Findings findings;
    findings.rooms = countOf(connection, table::kSalle);
    findings.periods = countOf(connection, table::kTrancheTable);
    findings.courses = countOf(connection, table::kEmplois);
    runtime::skipOnError([&] { findings.lastDay = lastDayIn(connection); });
    findings.marksAbsences = mayWrite(connection, absences::table::kAbscence) &&
                             mayWrite(connection, absences::table::kEtudAbs);
    runtime::skipOnError([&] { // a column of another name is for the plan to tell
        findings.hasApostrophes =
            holdsApostrophe(connection, table::kSalle, timetable::column::kNom) ||
            holdsApostrophe(connection, table::kEmplois, timetable::column::kClasse);
    });
    return findings;
}

QString inWords(const Findings& findings)
{
    return QStringLiteral("%1, %2, %3 ; droits : %4")
        .arg(counted(findings.rooms, QStringLiteral("salle"), QStringLiteral("salles")),
             counted(findings.periods, QStringLiteral("période"), QStringLiteral("périodes")),
             counted(findings.courses, QStringLiteral("séance"), QStringLiteral("séances")),
             findings.marksAbsences ? QStringLiteral("lecture et absences")
                                    : QStringLiteral("lecture seule"));
}

} // namespace setup
