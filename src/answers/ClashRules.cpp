#include "answers/ClashRules.h"

#include <algorithm>

namespace answers
{

using timetable::Holding;
using timetable::RoomId;
using timetable::RoomNameId;

bool ClashRules::areOneCourse(const Holding& left, const Holding& right) const
{
    if (left.time->start != right.time->start) {
        return false;
    }
    const timetable::Timetable& timetable = m_occupancy.timetable();
    const timetable::MeetingPart& leftPart = m_occupancy.meetingOf(left).part(left.part);
    const timetable::MeetingPart& rightPart = m_occupancy.meetingOf(right).part(right.part);
    return timetable.teachers().areEqual(leftPart.teachers.front(), rightPart.teachers.front()) &&
           timetable.subjects().areEqual(leftPart.subject, rightPart.subject);
}

bool ClashRules::shareRoom(const Holding& left, const Holding& right) const
{
    const timetable::Timetable& timetable = m_occupancy.timetable();
    const auto nameOneRoom = [&timetable](RoomNameId one, RoomNameId other) {
        if (one.isNone() || other.isNone()) {
            return false;
        }
        const std::vector<RoomId>& others = timetable.roomName(other).rooms;
        const std::vector<RoomId>& rooms = timetable.roomName(one).rooms;
        return std::any_of(rooms.begin(), rooms.end(), [&others](RoomId room) {
            return std::find(others.begin(), others.end(), room) != others.end();
        });
    };
    return std::any_of(left.rooms.begin(), left.rooms.end(), [&](RoomNameId one) {
        return std::any_of(right.rooms.begin(), right.rooms.end(),
                           [&](RoomNameId other) { return nameOneRoom(one, other); });
    });
}

bool ClashRules::clashOverRoom(const Holding& left, const Holding& right) const
{
    return left.meeting != right.meeting && !areOneCourse(left, right);
}

bool ClashRules::clashOverTeacher(const Holding& left, const Holding& right) const
{
    const bool isOnePart = left.meeting == right.meeting && left.part == right.part;
    return !isOnePart && !shareRoom(left, right);
}

bool ClashRules::clashOverClass(const Holding& left, const Holding& right) const
{
    return left.meeting != right.meeting && !(areOneCourse(left, right) && shareRoom(left, right));
}

} // namespace answers
