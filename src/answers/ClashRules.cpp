#include "answers/ClashRules.h"

#include <algorithm>

namespace answers
{

using timetable::HoldingId;
using timetable::RoomId;
using timetable::RoomNameId;

bool ClashRules::areOneCourse(HoldingId left, HoldingId right) const
{
    const HoldingFacts& one = facts(left);
    const HoldingFacts& other = facts(right);
    return one.start == other.start && one.teacher == other.teacher && one.subject == other.subject;
}

bool ClashRules::shareRoom(HoldingId left, HoldingId right) const
{
    const std::array<RoomNameId, 2>& ones = facts(left).rooms;
    const std::array<RoomNameId, 2>& others = facts(right).rooms;
    if (ones.front() == others.front()) { // as most do that are compared
        return true;
    }
    const timetable::Timetable& timetable = m_occupancy.timetable();
    const auto nameOneRoom = [&timetable](RoomNameId one, RoomNameId other) {
        if (one.isNone() || other.isNone()) {
            return false;
        }
        const std::vector<RoomId>& rooms = timetable.roomName(one).rooms;
        const std::vector<RoomId>& otherRooms = timetable.roomName(other).rooms;
        return std::find_first_of(rooms.begin(), rooms.end(), otherRooms.begin(),
                                  otherRooms.end()) != rooms.end();
    };
    return std::any_of(ones.begin(), ones.end(), [&](RoomNameId one) {
        return std::any_of(others.begin(), others.end(),
                           [&](RoomNameId other) { return nameOneRoom(one, other); });
    });
}

bool ClashRules::clashOverRoom(HoldingId left, HoldingId right) const
{
    return facts(left).meeting != facts(right).meeting && !areOneCourse(left, right);
}

bool ClashRules::clashOverTeacher(HoldingId left, HoldingId right) const
{
    const HoldingFacts& one = facts(left);
    const HoldingFacts& other = facts(right);
    const bool isOnePart = one.meeting == other.meeting && one.part == other.part;
    return !isOnePart && !shareRoom(left, right);
}

bool ClashRules::clashOverClass(HoldingId left, HoldingId right) const
{
    return facts(left).meeting != facts(right).meeting &&
           !(areOneCourse(left, right) && shareRoom(left, right));
}

} // namespace answers
