#include "answers/WeekOf.h"

#include <algorithm>
#include <tuple>

namespace answers
{
namespace
{

using timetable::Holding;
using timetable::HoldingId;
using timetable::Occupancy;

/// Whether a holding is about the subject.
class IsAbout
{
public:
    IsAbout(const Occupancy& occupancy, const Holding& holding)
        : m_occupancy(occupancy), m_holding(holding), m_meeting(occupancy.meetingOf(holding))
    {
    }

    bool operator()(timetable::RoomId room) const
    {
        const std::vector<timetable::RoomId> rooms = m_occupancy.roomsOf(m_holding);
        return std::find(rooms.begin(), rooms.end(), room) != rooms.end();
    }
    bool operator()(timetable::TeacherId teacher) const
    {
        const auto& teachers = m_meeting.part(m_holding.part).teachers;
        return std::any_of(teachers.begin(), teachers.end(), [&](timetable::TeacherId each) {
            return !each.isNone() && m_occupancy.timetable().teachers().areEqual(each, teacher);
        });
    }
    bool operator()(timetable::ClassId className) const
    {
        return m_occupancy.timetable().classes().areEqual(m_meeting.className, className);
    }
    bool operator()(timetable::SubjectId subject) const
    {
        return m_occupancy.timetable().subjects().areEqual(m_meeting.part(m_holding.part).subject,
                                                           subject);
    }

private:
    const Occupancy& m_occupancy;
    const Holding& m_holding;
    const timetable::Meeting& m_meeting;
};

} // namespace

bool isAbout(const Occupancy& occupancy, const Holding& holding, const Subject& subject)
{
    return std::visit(IsAbout(occupancy, holding), subject);
}

std::vector<timetable::When> AskedWeek::days() const
{
    constexpr int daysOfWeek = 6;
    std::vector<timetable::When> days;
    for (int day = timetable::kMonday; day < daysOfWeek; ++day) {
        days.push_back(date.isValid()
                           ? timetable::When::date(date.addDays(day - timetable::dayOf(date)), week)
                           : timetable::When::weekday(day, week));
    }
    return days;
}

std::vector<HoldingId> weekOfAll(const Occupancy& occupancy, const AskedWeek& week)
{
    const std::vector<timetable::When> days = week.days();
    std::vector<HoldingId> found;
    const std::vector<Holding>& holdings = occupancy.holdings();
    for (std::size_t index = 0; index < holdings.size(); ++index) {
        if (std::any_of(days.begin(), days.end(), [&](const timetable::When& day) {
                return occupancy.isOn(holdings[index], day);
            })) {
            found.push_back(HoldingId(static_cast<int>(index)));
        }
    }
    const auto key = [&occupancy](HoldingId id) {
        const Holding& holding = occupancy.holding(id);
        return std::tuple(holding.day, holding.time,
                          occupancy.timetable().roomName(holding.rooms.front()).text);
    };
    std::stable_sort(found.begin(), found.end(),
                     [&key](HoldingId left, HoldingId right) { return key(left) < key(right); });
    return found;
}

std::vector<HoldingId> weekOf(const Occupancy& occupancy, const Subject& subject,
                              const AskedWeek& week)
{
    std::vector<HoldingId> items = weekOfAll(occupancy, week);
    std::erase_if(
        items, [&](HoldingId id) { return !isAbout(occupancy, occupancy.holding(id), subject); });
    return items;
}

} // namespace answers
