#include "answers/Agenda.h"

#include "answers/ClashRules.h"

#include <algorithm>
#include <tuple>

namespace answers
{
namespace
{

using timetable::Holding;
using timetable::HoldingId;
using timetable::Occupancy;
using timetable::Week;
using timetable::When;

/// Why the period's dates cannot be listed.
std::optional<NoAgenda> whyNoDates(const std::optional<timetable::Period>& period)
{
    constexpr int mostYears = 10;
    if (!period || !period->firstDay.isValid() || !period->lastDay.isValid()) {
        return NoAgenda::PeriodUnread;
    }
    return period->firstDay.addYears(mostYears) < period->lastDay
               ? std::optional(NoAgenda::PeriodTooLong)
               : std::nullopt;
}

/// Each date of the period and of what has a date of its own, once and in order.
std::vector<QDate> datesOf(const Occupancy& occupancy, const std::vector<HoldingId>& ids)
{
    std::vector<QDate> dates;
    const timetable::Period& period = *occupancy.timetable().period();
    for (QDate date = period.firstDay; date <= period.lastDay; date = date.addDays(1)) {
        dates.push_back(date);
    }
    for (const HoldingId id : ids) {
        const QDate date = occupancy.holding(id).date;
        if (date.isValid()) {
            dates.push_back(date);
        }
    }
    std::sort(dates.begin(), dates.end());
    dates.erase(std::unique(dates.begin(), dates.end()), dates.end());
    return dates;
}

/// The days asked about, each with the week that it lies in; of a week A or B only its dates.
std::vector<When> daysOf(const AskedWeek& asked, const timetable::WeekRhythm& rhythm,
                         const std::vector<QDate>& dates)
{
    std::vector<When> days;
    if (asked.date.isValid()) {
        const Week week = asked.week != Week::Every ? asked.week : rhythm.weekOf(asked.date);
        return AskedWeek{week, asked.date}.days();
    }
    for (const QDate date : dates) {
        const Week week = rhythm.weekOf(date);
        if (asked.week == Week::Every || asked.week == week) {
            days.push_back(When::date(date, week));
        }
    }
    return days;
}

/// Makes the entries of one day.
class DayEntries
{
public:
    explicit DayEntries(const Occupancy& occupancy) : m_occupancy(occupancy), m_rules(occupancy) {}

    /// `ids` is what is held on the date.
    [[nodiscard]] std::vector<AgendaEntry> of(QDate date, std::vector<HoldingId> ids) const
    {
        std::sort(ids.begin(), ids.end(),
                  [this](HoldingId left, HoldingId right) { return key(left) < key(right); });
        std::vector<AgendaEntry> entries;
        for (const HoldingId id : ids) {
            const auto same =
                std::find_if(entries.begin(), entries.end(), [&](const AgendaEntry& entry) {
                    return areOneEntry(entry.holdings.front(), id);
                });
            if (same == entries.end()) {
                entries.push_back({date, m_occupancy.holding(id).time, {id}});
            } else {
                same->time = std::max(same->time, m_occupancy.holding(id).time);
                same->holdings.push_back(id);
            }
        }
        return entries;
    }

private:
    /// By what the rows say first, so that the order in which they were read decides nothing.
    [[nodiscard]] std::tuple<int, QString, QString, HoldingId> key(HoldingId id) const
    {
        const Holding& holding = m_occupancy.holding(id);
        const timetable::Timetable& timetable = m_occupancy.timetable();
        return {holding.time ? holding.time->start.value : -1,
                timetable.roomName(holding.rooms.front()).text,
                timetable.classes().text(m_occupancy.meetingOf(holding).className), id};
    }
    [[nodiscard]] std::vector<timetable::RoomId> sortedRooms(const Holding& holding) const
    {
        std::vector<timetable::RoomId> rooms = m_occupancy.roomsOf(holding);
        std::sort(rooms.begin(), rooms.end());
        return rooms;
    }
    [[nodiscard]] bool areOneEntry(HoldingId left, HoldingId right) const
    {
        const Holding& one = m_occupancy.holding(left);
        const Holding& other = m_occupancy.holding(right);
        return one.time && other.time && one.weeks == other.weeks &&
               m_occupancy.meetingOf(one).kind == m_occupancy.meetingOf(other).kind &&
               m_rules.areOneCourse(left, right) && sortedRooms(one) == sortedRooms(other);
    }

    const Occupancy& m_occupancy;
    ClashRules m_rules;
};

std::vector<HoldingId> everythingOf(const Occupancy& occupancy, const Subject& subject)
{
    std::vector<HoldingId> ids;
    for (std::size_t index = 0; index < occupancy.holdings().size(); ++index) {
        if (isAbout(occupancy, occupancy.holdings()[index], subject)) {
            ids.push_back(HoldingId(static_cast<int>(index)));
        }
    }
    return ids;
}

} // namespace

Agenda agendaOf(const Occupancy& occupancy, const Subject& subject, const AskedWeek& week,
                const timetable::WeekRhythm& rhythm)
{
    const std::vector<HoldingId> all = everythingOf(occupancy, subject);
    std::vector<QDate> dates;
    if (!week.date.isValid()) {
        if (const auto reason = whyNoDates(occupancy.timetable().period())) {
            return {reason, {}};
        }
        if (week.week != Week::Every && !rhythm.isKnown()) {
            return {NoAgenda::WeeksUnknown, {}};
        }
        dates = datesOf(occupancy, all);
    }
    const DayEntries makeEntries(occupancy);
    Agenda agenda;
    for (const When& day : daysOf(week, rhythm, dates)) {
        std::vector<HoldingId> held;
        for (const HoldingId id : all) {
            const Holding& holding = occupancy.holding(id);
            if (!occupancy.isOn(holding, day)) {
                continue;
            }
            if (day.week() == Week::Every && holding.weeks != Week::Every) {
                return {NoAgenda::WeeksUnknown, {}};
            }
            held.push_back(id);
        }
        const std::vector<AgendaEntry> entries = makeEntries.of(day.date(), std::move(held));
        agenda.entries.insert(agenda.entries.end(), entries.begin(), entries.end());
    }
    return agenda;
}

QString agendaSentence(const timetable::Timetable& timetable, NoAgenda reason)
{
    const QString period = timetable.period() ? timetable.period()->name : QString();
    switch (reason) {
    case NoAgenda::PeriodUnread:
        return QStringLiteral("La période « %1 » n’a pas de premier et de dernier jour lisibles : "
                              "les dates de ses cours ne sont pas connues")
            .arg(period);
    case NoAgenda::PeriodTooLong:
        return QStringLiteral("La période « %1 » dure plus de dix ans : son premier ou son dernier "
                              "jour est sans doute mal saisi")
            .arg(period);
    case NoAgenda::WeeksUnknown:
        break;
    }
    return QStringLiteral("Les dates des semaines A et B ne sont pas connues : indiquez dans le "
                          "paramètre SemaineA le lundi d’une semaine A (AAAA-MM-JJ)");
}

} // namespace answers
