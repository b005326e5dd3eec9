#include "answers/FreeRooms.h"

#include <algorithm>
#include <tuple>

namespace answers
{
namespace
{

using timetable::HoldingId;
using timetable::MinuteOfDay;
using timetable::Occupancy;
using timetable::RoomId;
using timetable::TimeSpan;
using timetable::When;

void addOnce(std::vector<HoldingId>& all, const std::vector<HoldingId>& more)
{
    for (const HoldingId id : more) {
        if (std::find(all.begin(), all.end(), id) == all.end()) {
            all.push_back(id);
        }
    }
}

/// From the day's first slot to the end of its last one, and at least the asked time.
TimeSpan dayAround(const Occupancy& occupancy, int day, const TimeSpan& span)
{
    MinuteOfDay start = span.start;
    MinuteOfDay end = span.end();
    for (const timetable::DaySlot& slot : occupancy.timetable().slotsOf(day)) {
        start = slot.start ? std::min(start, *slot.start) : start;
        end = slot.end ? std::max(end, *slot.end) : end;
    }
    return timetable::between(start, end);
}

/// The free stretch around a time at which nothing holds the room.
TimeSpan stretchAround(const Occupancy& occupancy, RoomId room, const When& when,
                       const TimeSpan& span)
{
    const TimeSpan day = dayAround(occupancy, when.day(), span);
    MinuteOfDay start = day.start;
    MinuteOfDay end = day.end();
    for (const HoldingId id : occupancy.holders(room, when)) {
        const TimeSpan held = *occupancy.holding(id).time;
        if (held.end() <= span.start) {
            start = std::max(start, held.end());
        } else {
            end = std::min(end, held.start);
        }
    }
    return timetable::between(std::min(start, span.start), std::max(end, span.end()));
}

TimeSpan commonOf(const TimeSpan& left, const TimeSpan& right)
{
    return timetable::between(std::max(left.start, right.start), std::min(left.end(), right.end()));
}

} // namespace

FreeRooms freeRooms(const Occupancy& occupancy, const FreeRoomsQuestion& question)
{
    FreeRooms answer;
    const auto rooms = occupancy.timetable().rooms();
    for (int index = 0; index < static_cast<int>(rooms.size()); ++index) {
        const timetable::Room& room = rooms[static_cast<std::size_t>(index)];
        if (room.places < question.places || !question.rooms.holds(room)) {
            continue;
        }
        const RoomId id(index);
        std::vector<HoldingId> unknown;
        std::vector<HoldingId> holders;
        TimeSpan stretch{{0}, {2 * 24 * 60}};
        for (const When& when : question.days) {
            addOnce(unknown, occupancy.unknown(id, when));
            addOnce(holders, occupancy.holders(id, when, question.span));
            stretch = commonOf(stretch, stretchAround(occupancy, id, when, question.span));
        }
        if (!unknown.empty()) {
            answer.unknown.push_back({id, std::move(unknown)});
        } else if (!holders.empty()) {
            answer.taken.push_back({id, std::move(holders)});
        } else {
            answer.rooms.push_back({id, stretch});
        }
    }
    std::stable_sort(answer.rooms.begin(), answer.rooms.end(),
                     [&](const FreeRoom& left, const FreeRoom& right) {
                         return occupancy.timetable().room(left.room).places <
                                occupancy.timetable().room(right.room).places;
                     });
    return answer;
}

} // namespace answers
