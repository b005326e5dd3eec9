#include "answers/ClashRules.h"

#include <algorithm>

namespace answers
{

using timetable::HoldingId;
using timetable::RoomId;
using timetable::RoomNameId;
using timetable::Week;

bool ClashRules::areOneCourse(HoldingId left, HoldingId right) const
{
    const HoldingFacts& one = facts(left);
    const HoldingFacts& other = facts(right);
    return one.start == other.start && one.teacher == other.teacher && one.subject == other.subject;
}

Week ClashRules::commonWeeks(HoldingId left, HoldingId right) const
{
    const Week weeks = facts(left).weeks;
    return weeks == Week::Every ? facts(right).weeks : weeks;
}

bool ClashRules::shareRoom(const RoomNames& ones, const RoomNames& others) const
{
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

std::optional<Week> ClashRules::weeksApart(HoldingId left, HoldingId right) const
{
    const HoldingFacts& one = facts(left);
    const HoldingFacts& other = facts(right);
    if (shareRoom(one.rooms, other.rooms)) {
        return std::nullopt;
    }
    const Week common = commonWeeks(left, right);
    const bool hasMoreInA = one.roomsInA != one.rooms || other.roomsInA != other.rooms;
    if (common == Week::B || !hasMoreInA || !shareRoom(one.roomsInA, other.roomsInA)) {
        return common;
    }
    return common == Week::Every ? std::optional(Week::B) : std::nullopt;
}

std::optional<Week> ClashRules::clashOverRoom(HoldingId left, HoldingId right) const
{
    const bool isClash = facts(left).meeting != facts(right).meeting && !areOneCourse(left, right);
    return isClash ? std::optional(commonWeeks(left, right)) : std::nullopt;
}

std::optional<Week> ClashRules::clashOverTeacher(HoldingId left, HoldingId right) const
{
    const HoldingFacts& one = facts(left);
    const HoldingFacts& other = facts(right);
    const bool isOnePart = one.meeting == other.meeting && one.part == other.part;
    return isOnePart ? std::nullopt : weeksApart(left, right);
}

std::optional<Week> ClashRules::clashOverClass(HoldingId left, HoldingId right) const
{
    if (facts(left).meeting == facts(right).meeting) {
        return std::nullopt;
    }
    return areOneCourse(left, right) ? weeksApart(left, right) : commonWeeks(left, right);
}

} // namespace answers
