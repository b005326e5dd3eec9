#include "answers/RoomUse.h"

#include <algorithm>

namespace answers
{
namespace
{

using timetable::ClassId;
using timetable::HoldingId;
using timetable::Occupancy;
using timetable::RoomId;
using timetable::TimeSpan;
using timetable::Week;

constexpr int kDays = 6;

double shareOf(double part, double whole)
{
    return whole > 0 ? part / whole : 0;
}

/// The weeks whose mean is asked for.
std::vector<Week> weeksOf(Week asked)
{
    return asked == Week::Every ? std::vector{Week::A, Week::B} : std::vector{asked};
}

/// Adds up who is where, room by room.
class Reckoning
{
public:
    Reckoning(const Occupancy& occupancy, Week week)
        : m_occupancy(occupancy), m_weeks(weeksOf(week)),
          m_weight(1.0 / static_cast<double>(m_weeks.size()))
    {
        for (int day = timetable::kMonday; day < kDays; ++day) {
            for (const timetable::DaySlot& slot : occupancy.timetable().slotsOf(day)) {
                if (const std::optional<TimeSpan> time = timeOf(slot)) {
                    m_use.slots.push_back({day, slot.number, 0, 0, 0});
                    m_times.push_back(*time);
                }
            }
        }
    }

    void add(RoomId id)
    {
        const int places = std::max(0, m_occupancy.timetable().room(id).places);
        UseOfRoom room{id, places, static_cast<int>(m_use.slots.size()), 0, 0, 0};
        double seats = 0;
        for (const Week week : m_weeks) {
            seats += addWeek(room, week);
        }
        const double allSeats = static_cast<double>(places) * room.slots;
        room.share = shareOf(room.held, room.slots);
        room.seatsShare = shareOf(seats, allSeats);
        m_held += room.held;
        m_seats += seats;
        m_allSeats += allSeats;
        m_use.rooms.push_back(room);
    }

    [[nodiscard]] RoomUse take()
    {
        const auto rooms = static_cast<int>(m_use.rooms.size());
        for (UseOfSlot& slot : m_use.slots) {
            slot.rooms = rooms;
            slot.share = shareOf(slot.held, rooms);
        }
        m_use.share =
            shareOf(m_held, static_cast<double>(rooms) * static_cast<double>(m_use.slots.size()));
        m_use.seatsShare = shareOf(m_seats, m_allSeats);
        return std::move(m_use);
    }

private:
    /// Counts the slots that are held, and tells how many seats are taken in them.
    double addWeek(UseOfRoom& room, Week week)
    {
        double seats = 0;
        int day = timetable::kNoDay;
        std::vector<HoldingId> holders;
        for (std::size_t index = 0; index < m_times.size(); ++index) {
            UseOfSlot& slot = m_use.slots[index];
            if (slot.day != day) {
                day = slot.day;
                holders = m_occupancy.holders(room.room, timetable::When::weekday(day, week));
            }
            if (const std::optional<int> students = studentsIn(holders, m_times[index])) {
                room.held += m_weight;
                slot.held += m_weight;
                seats += m_weight * std::min(*students, room.places);
            }
        }
        return seats;
    }

    /// Of the classes that are there then; nothing where nobody holds the room.
    std::optional<int> studentsIn(const std::vector<HoldingId>& holders, const TimeSpan& time)
    {
        const timetable::Timetable& timetable = m_occupancy.timetable();
        std::optional<int> students;
        m_classes.clear();
        for (const HoldingId id : holders) {
            const timetable::Holding& holding = m_occupancy.holding(id);
            if (!holding.time->meets(time)) {
                continue;
            }
            const ClassId each =
                timetable.classes().group(m_occupancy.meetingOf(holding).className);
            students = students.value_or(0);
            if (each.isNone() ||
                std::find(m_classes.begin(), m_classes.end(), each) != m_classes.end()) {
                continue;
            }
            m_classes.push_back(each);
            const std::optional<int> size = timetable.sizeOf(each).students;
            m_use.areSeatsKnown = m_use.areSeatsKnown && size;
            *students += size.value_or(0);
        }
        return students;
    }

    const Occupancy& m_occupancy;
    std::vector<Week> m_weeks;
    double m_weight; ///< of each week
    RoomUse m_use;
    std::vector<TimeSpan> m_times; ///< of the slots
    double m_held = 0;
    double m_seats = 0;
    double m_allSeats = 0;
    std::vector<ClassId> m_classes; ///< those of a slot, each once
};

} // namespace

RoomUse roomUse(const Occupancy& occupancy, Week week, const RoomFilter& filter)
{
    Reckoning reckoning(occupancy, week);
    const auto rooms = occupancy.timetable().rooms();
    for (std::size_t index = 0; index < rooms.size(); ++index) {
        if (filter.holds(rooms[index])) {
            reckoning.add(RoomId(static_cast<int>(index)));
        }
    }
    return reckoning.take();
}

} // namespace answers
