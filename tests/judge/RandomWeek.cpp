#include "judge/RandomWeek.h"

#include <stdexcept>

namespace test
{
namespace
{

constexpr int kCourses = 110;
constexpr int kOthers = 60; ///< make-ups, and exams

/// Runs the statements unless their table is one that the random timetable lacks.
void executeIfThere(TestDatabase& database, const QStringList& statements)
{
    try {
        database.execute(statements);
    } catch (const std::runtime_error&) {
        // The table stays missing.
    }
}

QString quoted(const QString& text)
{
    return u'\'' + text + u'\'';
}

QString dateLiteral(QDate date)
{
    return quoted(date.toString(Qt::ISODate));
}

} // namespace

const std::vector<QString>& RandomWeek::departments()
{
    static const std::vector<QString> all{"INFO", "MATH", "GÉO"};
    return all;
}

QString RandomWeek::anyOf(const std::vector<QString>& literals)
{
    return literals[static_cast<std::size_t>(m_random.pick(static_cast<int>(literals.size())))];
}

QDate RandomWeek::anyDate()
{
    return m_random.chance(60) ? RandomTimetable::date().addDays(m_random.pick(15))
                               : RandomTimetable::date().addDays(m_random.pick(90) - 40);
}

QString RandomWeek::anyKey()
{
    if (m_random.chance(5)) {
        return anyOf({"''", "null", "'Lundi'", "'Mardi '", "'Fériés1'", "'3'"});
    }
    const QString day = anyOf({"Lundi", "lundi", "Lundi", "Mardi", "MARDI", "Mercredi", "Jeudi",
                               "Vendredi", "Samedi", "Dimanche"});
    return quoted(day + anyOf({"1", "2", "3", "4", "1", "2", "3", "4", "6", "11", "03"}));
}

/// The part of an update that says when a row is held.
QString RandomWeek::times()
{
    const QString start =
        anyOf({"'8h00'", "'8H15'", "'9:30'", "'9h30'", "'10h10'", "'11h00'", "'12h'", "'13h45'",
               "'7h59'", "'18h00'", "'23h30'", "' 14h00 '", "null", "''", "'matin'", "'24h00'"});
    const QString length =
        anyOf({"'90'", "'90'", "'45'", "'1'", "'180'", "'60 min'", "'89.5'", "'1h30'", "''", "null",
               "'0'", "'-5'", "'long'", "'700'", "'40000'"});
    return QStringLiteral("Seance = ") + anyKey() + QStringLiteral(", Debut = ") + start +
           QStringLiteral(", `Durée` = ") + length;
}

/// Periods of a few weeks, with exams in and behind them; some have no exam weeks of their own.
void RandomWeek::addCalendar(TestDatabase& database)
{
    QStringList statements;
    for (int period = 1; period <= 2; ++period) {
        const QString ident = QString::number(period);
        const QDate first = RandomTimetable::date().addDays(-m_random.pick(40));
        const QDate last = RandomTimetable::date().addDays(m_random.pick(30));
        statements << QStringLiteral("update tranche set DateDebut = ") + dateLiteral(first) +
                          QStringLiteral(", DateFin = ") + dateLiteral(last) +
                          QStringLiteral(" where ident = ") + ident;
        if (m_random.chance(25)) {
            statements << QStringLiteral("delete from dat_exam where Tranche = ") + ident;
            continue;
        }
        QStringList weeks;
        for (const char* column : {"Semaine1", "Semaine2", "Controle"}) {
            const QDate monday = RandomTimetable::date().addDays(qint64(7) * m_random.pick(3));
            weeks << QLatin1String(column) + QStringLiteral(" = ") + dateLiteral(monday);
        }
        statements << QStringLiteral("update dat_exam set ") + weeks.join(QStringLiteral(", ")) +
                          QStringLiteral(" where Tranche = ") + ident;
    }
    database.execute(statements);
}

void RandomWeek::addRooms(TestDatabase& database)
{
    QStringList statements;
    if (m_random.chance(20)) {
        statements << QStringLiteral("insert into salle (Nom) values ('')");
    }
    for (int room = 1; room <= 60; ++room) {
        const QString department =
            m_random.chance(30) ? QStringLiteral("null") : quoted(anyOf(departments()));
        statements << QStringLiteral("update salle set places = ") +
                          anyOf({"30", "30", "40", "12", "0", "null"}) +
                          QStringLiteral(", Zone = ") + anyOf({"1", "2", "3", "null"}) +
                          QStringLiteral(", `Département` = ") + department +
                          QStringLiteral(" where Num = ") + QString::number(room);
    }
    database.execute(statements);
}

/// A day that has its own slots, and slots whose start or end cannot be read.
void RandomWeek::addSlots(TestDatabase& database)
{
    QStringList statements;
    QString odd = QStringLiteral("Lundi");
    if (m_random.chance(50)) {
        odd = anyOf({"Mardi", "mardi", "Samedi"});
        for (int slot = 1; slot <= 3; ++slot) {
            statements << QStringLiteral("insert into seances (Seance, Horaire1, Horaire2) values "
                                         "('%1%2', '%3h20', '%4h10')")
                              .arg(odd)
                              .arg(slot)
                              .arg(8 + 2 * slot)
                              .arg(10 + 2 * slot);
        }
    }
    if (odd != QLatin1String("Lundi") || m_random.chance(30)) {
        const QString where = QStringLiteral(" where Seance = '") + odd;
        statements << QStringLiteral("update seances set Horaire1 = ") +
                          anyOf({"null", "'tôt'", "''"}) + where +
                          QString::number(1 + m_random.pick(3)) + u'\''
                   << QStringLiteral("update seances set Horaire2 = ") +
                          anyOf({"null", "'16h10'"}) + where + QStringLiteral("3'");
        m_isReadAtStart = odd != QLatin1String("Lundi");
    }
    if (!statements.isEmpty()) {
        database.execute(statements);
    }
}

void RandomWeek::moveRows(TestDatabase& database)
{
    const auto move = [this](const QString& table, int rows, auto further) {
        QStringList statements;
        const int left = 50 + m_random.pick(50); // percent of the rows that stay
        for (int row = 1; row <= rows; ++row) {
            const QString where = QStringLiteral(" where Num = ") + QString::number(row);
            if (!m_random.chance(left)) {
                statements << QStringLiteral("delete from ") + table + where;
            } else if (m_random.chance(75)) {
                statements << QStringLiteral("update ") + table + QStringLiteral(" set ") +
                                  times() + further() + where;
            }
        }
        return statements;
    };
    database.execute(move("emplois", kCourses, [] { return QString(); }));
    database.execute(move("ratrap", kOthers, [this] {
        const QDate date = RandomTimetable::date().addDays(m_random.pick(12) - 2);
        return QStringLiteral(", DateX = ") +
               (m_random.chance(3) ? QStringLiteral("null") : dateLiteral(date));
    }));
    executeIfThere(database, move("examen", kOthers, [this] {
                       return QStringLiteral(", Semaine = ") +
                              anyOf({"1", "2", "3", "1", "2", "3", "0", "4", "null"});
                   }));
}

RandomWeek::RandomWeek(TestDatabase& database, unsigned seed) : m_random(database, seed)
{
    addCalendar(database);
    addRooms(database);
    addSlots(database);
    moveRows(database);
}

} // namespace test
