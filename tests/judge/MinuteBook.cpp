#include "judge/MinuteBook.h"

#include <QRegularExpression>
#include <algorithm>
#include <bitset>
#include <cmath>
#include <set>
#include <stdexcept>

namespace test
{
namespace
{

// No question ends behind this minute, and no slot.
constexpr int kMinutes = 24 * 60 + 1;
constexpr int kUsualMinutes = 90;

using Minutes = std::bitset<kMinutes>;

bool isNull(const QString& field)
{
    return field == QLatin1String("NULL");
}

QDate dateOf(const QString& field)
{
    return QDate::fromString(field.left(10), Qt::ISODate);
}

/// Every minute from `from` up to but not `to`, as far as somebody may ask about it.
void hold(Minutes& held, int from, int to)
{
    for (int minute = from; minute < std::min(to, kMinutes); ++minute) {
        held.set(static_cast<std::size_t>(minute));
    }
}

bool isHeld(const Minutes& held, int from, int to)
{
    for (int minute = from; minute < to; ++minute) {
        if (held.test(static_cast<std::size_t>(minute))) {
            return true;
        }
    }
    return false;
}

QDate mondayBehind(QDate date)
{
    do {
        date = date.addDays(1);
    } while (date.dayOfWeek() != Qt::Monday);
    return date;
}

} // namespace

MinuteBook::MinuteBook(const TestDatabase& database, int period) : m_database(database)
{
    readRooms();
    readSlots();
    readCalendar(period);
    readMeetings("emplois", "course", period);
    readMeetings("ratrap", "makeup", period);
    readMeetings("examen", "exam", period);
}

/// No rows where the table or a column of it is missing.
QList<QStringList> MinuteBook::readIfThere(const QString& query) const
{
    try {
        return m_database.read(query);
    } catch (const std::runtime_error&) {
        return {};
    }
}

void MinuteBook::readRooms()
{
    const auto rows = m_database.read("select a.Num, a.Nom, a.places, a.Zone, a.`Département`, "
                                      "(select count(*) from salle b where b.Nom < a.Nom) "
                                      "from salle a");
    for (const QStringList& row : rows) {
        BookedRoom room;
        room.name = row[1];
        room.places = row[2].toInt(); // none: 0
        room.zone = isNull(row[3]) ? std::nullopt : std::optional(row[3].toInt());
        room.department = isNull(row[4]) ? std::nullopt : std::optional(row[4]);
        room.rank = row[5].toInt();
        m_roomOfRow.insert(row[0].toInt(), m_rooms.size());
        m_placeOfName.insert(room.name, m_rooms.size());
        m_rooms.push_back(std::move(room));
    }
}

void MinuteBook::readSlots()
{
    for (const QStringList& row :
         m_database.read("select Seance, Horaire1, Horaire2 from seances")) {
        const Key key = keyOf(row[0]);
        if (key.day >= 0 && key.number > 0) {
            m_slots.at(static_cast<std::size_t>(key.day))
                .push_back({key.number, timeOf(row[1]), timeOf(row[2])});
        }
    }
}

void MinuteBook::readCalendar(int period)
{
    const QString number = QString::number(period);
    const auto periods =
        m_database.read("select DateDebut, DateFin from tranche where ident = " + number);
    m_firstDay = dateOf(periods.at(0).at(0));
    m_lastDay = dateOf(periods.at(0).at(1));
    const auto exams = m_database.read(
        "select Semaine1, Semaine2, Controle from dat_exam where Tranche = " + number);
    if (exams.isEmpty()) {
        const QDate behind = mondayBehind(m_lastDay);
        m_examMondays = {behind, behind.addDays(7), mondayBehind(m_firstDay.addDays(28))};
        return;
    }
    for (std::size_t week = 0; week < m_examMondays.size(); ++week) {
        m_examMondays.at(week) = dateOf(exams.at(0).at(static_cast<qsizetype>(week)));
    }
}

MinuteBook::Key MinuteBook::keyOf(const QString& text) const
{
    static const QStringList days{"lundi",    "mardi",  "mercredi", "jeudi",
                                  "vendredi", "samedi", "dimanche"};
    static const QRegularExpression form("^([a-z]+)([0-9]*)( *)$");
    const QRegularExpressionMatch match = form.match(text.toLower());
    // The server's texts are equal whatever blanks follow.
    const bool isEqual = m_database.usesMySql() || match.captured(3).isEmpty();
    const auto day = static_cast<int>(days.indexOf(match.captured(1)));
    return match.hasMatch() && isEqual && day >= 0 ? Key{day, match.captured(2).toInt()} : Key();
}

std::optional<int> MinuteBook::timeOf(const QString& text)
{
    static const QRegularExpression form("^ *([0-9]{1,2})[hH:]([0-9]{2})? *$");
    const QRegularExpressionMatch match = form.match(text);
    const int hours = match.captured(1).toInt();
    return match.hasMatch() && hours < 24 ? std::optional(hours * 60 + match.captured(2).toInt())
                                          : std::nullopt;
}

int MinuteBook::lengthOf(const QString& text)
{
    static const QRegularExpression form("^ *([0-9]+(\\.[0-9]+)?)");
    const double minutes = std::nearbyint(form.match(text).captured(1).toDouble());
    constexpr double most = 32767; // what the plan can count
    return minutes >= 1 && minutes <= most ? static_cast<int>(minutes) : kUsualMinutes;
}

const std::vector<MinuteBook::BookedSlot>& MinuteBook::slotsOf(int day) const
{
    const auto& own = m_slots.at(static_cast<std::size_t>(day));
    return own.empty() ? m_slots[0] : own;
}

std::optional<int> MinuteBook::slotStart(int day, int number) const
{
    for (const BookedSlot& slot : slotsOf(day)) {
        if (slot.number == number) {
            return slot.start;
        }
    }
    return std::nullopt;
}

QDate MinuteBook::examMonday(int week) const
{
    return m_examMondays.at(static_cast<std::size_t>(week - 1));
}

void MinuteBook::readMeetings(const QString& table, const QString& kind, int period)
{
    const QString own = kind == "makeup" ? "DateX" : kind == "exam" ? "Semaine" : "Num";
    const auto rows = readIfThere("select Num, Seance, Debut, `Durée`, newnature, " + own +
                                  " from " + table + " where Tranche = " + QString::number(period));
    QHash<int, BookedPart> booked;
    m_alternates.clear();
    for (const QStringList& row : rows) {
        const Key key = keyOf(row[1]);
        BookedPart part;
        part.kind = kind;
        part.row = row[0].toInt();
        part.day = key.day;
        if (kind == "makeup") {
            part.date = dateOf(row[5]);
            part.day = part.date.isValid() ? part.date.dayOfWeek() - 1 : -1;
        } else if (kind == "exam") {
            const int week = row[5].toInt();
            const bool isNamed = week >= 1 && week <= 3 && key.day >= 0 && key.day <= 5;
            part.date = isNamed ? examMonday(week).addDays(key.day) : QDate();
            part.day = isNamed ? key.day : -1;
        } else {
            m_hasCourses = true;
            m_alternates.insert(part.row, row[4] == "10/20");
        }
        part.start = timeOf(row[2]);
        if (!part.start && part.day >= 0) {
            part.start = slotStart(part.day, key.number);
        }
        part.minutes = lengthOf(row[3]);
        booked.insert(part.row, part);
    }
    nameRooms(table, "Salle", period, booked);
    if (kind != "exam") {
        for (const char* column : {"YSalle", "XSalle", "SalleB", "YSalleB", "XSalleB"}) {
            nameRooms(table, column, period, booked);
        }
    }
}

/// Has the database say which rooms a column names.
void MinuteBook::nameRooms(const QString& table, const QString& column, int period,
                           const QHash<int, BookedPart>& rows)
{
    const auto named =
        readIfThere("select m.Num, r.Num from " + table + " m join salle r on m." + column +
                    " = r.Nom where m.Tranche = " + QString::number(period));
    for (const QStringList& pair : named) {
        BookedPart part = rows.value(pair[0].toInt());
        BookedRoom& room = m_rooms.at(m_roomOfRow.value(pair[1].toInt()));
        // The plan looks for a room without a name in `Salle`, and shows all of such a row that
        // names it.
        const bool isFound =
            !room.name.isEmpty() || column == "Salle" ||
            std::any_of(room.parts.begin(), room.parts.end(), [&](const BookedPart& each) {
                return each.kind == part.kind && each.row == part.row;
            });
        if (part.day < 0 || !isFound) {
            continue;
        }
        part.part = column == "XSalle"     ? "A2"
                    : column == "XSalleB"  ? "B2"
                    : column.endsWith('B') ? "B"
                                           : "A";
        if (part.kind == "course") {
            const bool isOfWeekA = column == "Salle" && m_alternates.value(part.row);
            part.week = isOfWeekA ? 'A' : column.endsWith('B') ? 'B' : '*';
        }
        const bool isThere =
            std::any_of(room.parts.begin(), room.parts.end(), [&](const BookedPart& each) {
                return each.kind == part.kind && each.row == part.row && each.part == part.part &&
                       each.week == part.week;
            });
        if (!isThere) {
            room.parts.push_back(part);
        }
    }
}

std::size_t MinuteBook::place(const QString& room) const
{
    return m_placeOfName.value(room);
}

QStringList MinuteBook::rooms() const
{
    QStringList names;
    for (const BookedRoom& room : m_rooms) {
        names << room.name;
    }
    return names;
}

bool MinuteBook::meets(const BookedRoom& room, const AskedRooms& asked) const
{
    return (!asked.zone || room.zone == asked.zone) &&
           (!asked.department || room.department == asked.department);
}

bool MinuteBook::hasRooms(const AskedRooms& asked) const
{
    return std::any_of(m_rooms.begin(), m_rooms.end(),
                       [&](const BookedRoom& room) { return meets(room, asked); });
}

bool MinuteBook::isOn(const BookedPart& part, const AskedDay& day) const
{
    if (part.date.isValid()) {
        return part.date == day.date;
    }
    const bool isTaught = !day.date.isValid() || teaches(day.date);
    const bool isOfWeek = part.week == '*' || day.week == '*' || part.week == day.week;
    return isTaught && part.day == day.day && isOfWeek;
}

QString MinuteBook::freeLine(const QString& room, int from, int to)
{
    return QStringLiteral("free \"") + room + QStringLiteral("\" ") + QString::number(from) + u'-' +
           QString::number(to);
}

QString MinuteBook::takenLine(const QString& room, QStringList holders)
{
    holders.sort();
    return QStringLiteral("taken \"") + room + QStringLiteral("\" by ") +
           holders.join(QStringLiteral("; "));
}

QString MinuteBook::unknownLine(const QString& room)
{
    return QStringLiteral("unknown \"") + room + u'"';
}

QString MinuteBook::holderWords(const QString& kind, const QString& part, int start, int minutes,
                                char week)
{
    return kind + u' ' + part + u' ' + QString::number(start) + u'+' + QString::number(minutes) +
           u' ' + QLatin1Char(week);
}

QString MinuteBook::line(const BookedRoom& room, const AskedRooms& asked) const
{
    Minutes held;
    int first = 0;
    int last = kMinutes;
    QStringList holders;
    std::set<const BookedPart*> told;
    for (const AskedDay& day : asked.days) {
        int dayFirst = asked.from;
        int dayLast = asked.to;
        for (const BookedSlot& slot : slotsOf(day.day)) {
            dayFirst = std::min(dayFirst, slot.start.value_or(dayFirst));
            dayLast = std::max(dayLast, slot.end.value_or(dayLast));
        }
        first = std::max(first, dayFirst);
        last = std::min(last, dayLast);
        for (const BookedPart& part : room.parts) {
            if (!isOn(part, day)) {
                continue;
            }
            if (!part.start) {
                return unknownLine(room.name);
            }
            Minutes alone;
            hold(alone, *part.start, *part.start + part.minutes);
            held |= alone;
            if (isHeld(alone, asked.from, asked.to) && told.insert(&part).second) {
                holders << holderWords(part.kind, part.part, *part.start, part.minutes, part.week);
            }
        }
    }
    if (isHeld(held, asked.from, asked.to)) {
        return takenLine(room.name, holders);
    }
    int from = asked.from;
    int to = asked.to;
    while (from > first && !held.test(static_cast<std::size_t>(from - 1))) {
        --from;
    }
    while (to < last && !held.test(static_cast<std::size_t>(to))) {
        ++to;
    }
    return freeLine(room.name, from, to);
}

QStringList MinuteBook::answer(const AskedRooms& asked) const
{
    QStringList lines;
    for (const BookedRoom& room : m_rooms) {
        if (room.places >= asked.places && meets(room, asked)) {
            lines << line(room, asked);
        }
    }
    lines.sort();
    return lines;
}

} // namespace test
