#include "answers/WeekGrid.h"

#include "answers/HolderWords.h"

#include <algorithm>
#include <array>
#include <utility>

namespace answers
{
namespace
{

std::vector<UnknownHour> unknownHours(const timetable::Occupancy& occupancy, const WeekDays& days,
                                      const std::vector<timetable::HoldingId>& items)
{
    std::vector<UnknownHour> unknown;
    for (const timetable::HoldingId id : items) {
        const timetable::Holding& holding = occupancy.holding(id);
        if (holding.time) {
            continue;
        }
        const QString words = days.at(static_cast<std::size_t>(holding.day)).title +
                              QStringLiteral(" : ") + whyUnknown(occupancy, {id});
        const bool isTold =
            std::any_of(unknown.begin(), unknown.end(),
                        [&words](const UnknownHour& each) { return each.words == words; });
        if (!isTold) {
            unknown.push_back({id, holding.day, words});
        }
    }
    return unknown;
}

/// Whether some slot begins when the box does, and some ends when it does.
bool isOnSlots(const WeekBox& box, const std::vector<timetable::TimeSpan>& slotTimes)
{
    const auto begins = [&box](const timetable::TimeSpan& slot) {
        return slot.start == box.time.start;
    };
    const auto ends = [&box](const timetable::TimeSpan& slot) {
        return slot.end() == box.time.end();
    };
    return std::any_of(slotTimes.begin(), slotTimes.end(), begins) &&
           std::any_of(slotTimes.begin(), slotTimes.end(), ends);
}

} // namespace

WeekGrid weekGrid(const timetable::Occupancy& occupancy, const std::optional<Subject>& subject,
                  const AskedWeek& week, const std::vector<timetable::HoldingId>& items)
{
    WeekGrid grid;
    grid.boxes = weekBoxes(occupancy, subject, items);
    std::array<std::vector<timetable::TimeSpan>, kShownDays> times;
    for (const WeekBox& box : grid.boxes) {
        times.at(static_cast<std::size_t>(box.day)).push_back(box.time);
    }
    grid.days = weekDays(occupancy.timetable(), week, times);
    for (WeekBox& box : grid.boxes) {
        box.isOffSlots = !isOnSlots(box, grid.days.at(static_cast<std::size_t>(box.day)).slotTimes);
    }
    grid.axis = commonAxis(grid.days);
    grid.unplaced = unknownHours(occupancy, grid.days, items);
    return grid;
}

} // namespace answers
