#include "answers/RoomWeeks.h"

#include "answers/HolderWords.h"

#include <algorithm>
#include <utility>

namespace answers
{
namespace
{

using timetable::HoldingId;
using timetable::Occupancy;
using timetable::RoomId;

/// What holds each room of the room table, by the room's id.
std::vector<std::vector<HoldingId>> byRoom(const Occupancy& occupancy,
                                           const std::vector<HoldingId>& items)
{
    std::vector<std::vector<HoldingId>> held(occupancy.timetable().rooms().size());
    for (const HoldingId id : items) {
        for (const RoomId room : occupancy.roomsOf(occupancy.holding(id))) {
            if (occupancy.timetable().isListed(room)) {
                held.at(static_cast<std::size_t>(room.index())).push_back(id);
            }
        }
    }
    return held;
}

/// Gives what is alone in its week the half of that week, so that it does not seem to be held every
/// week.
void halve(std::vector<WeekBox>& boxes)
{
    for (WeekBox& box : boxes) {
        if (box.lanes == 1 && !box.corner.isEmpty()) {
            box.lane = box.corner == u"A" ? 0 : 1;
            box.lanes = 2;
        }
    }
}

std::array<QString, kShownDays> unknownOf(const Occupancy& occupancy,
                                          const std::vector<HoldingId>& held)
{
    std::array<std::vector<HoldingId>, kShownDays> ids;
    for (const HoldingId id : held) {
        const timetable::Holding& holding = occupancy.holding(id);
        if (!holding.time) {
            ids.at(static_cast<std::size_t>(holding.day)).push_back(id);
        }
    }
    std::array<QString, kShownDays> words;
    for (std::size_t day = 0; day < kShownDays; ++day) {
        words.at(day) = ids.at(day).empty() ? QString() : whyUnknown(occupancy, ids.at(day));
    }
    return words;
}

bool isHeld(const RoomWeek& row)
{
    return !row.boxes.empty() || std::any_of(row.unknown.begin(), row.unknown.end(),
                                             [](const QString& why) { return !why.isEmpty(); });
}

} // namespace

bool RoomWeeks::isEmpty() const
{
    return std::none_of(rows.begin(), rows.end(), isHeld);
}

RoomWeeks roomWeeks(const Occupancy& occupancy, const AskedWeek& week,
                    const std::vector<HoldingId>& items, const RoomFilter& filter)
{
    const timetable::Timetable& timetable = occupancy.timetable();
    const std::vector<std::vector<HoldingId>> held = byRoom(occupancy, items);
    RoomWeeks weeks;
    std::array<std::vector<timetable::TimeSpan>, kShownDays> times;
    for (std::size_t index = 0; index < held.size(); ++index) {
        const RoomId id(static_cast<int>(index));
        const timetable::Room& room = timetable.room(id);
        if (!filter.holds(room)) {
            continue;
        }
        RoomWeek row{id, room.name, room.places, weekBoxes(occupancy, id, held[index]),
                     unknownOf(occupancy, held[index])};
        if (week.week == timetable::Week::Every) {
            halve(row.boxes);
        }
        for (const WeekBox& box : row.boxes) {
            times.at(static_cast<std::size_t>(box.day)).push_back(box.time);
        }
        weeks.rows.push_back(std::move(row));
    }
    weeks.days = weekDays(timetable, week, times);
    return weeks;
}

} // namespace answers
