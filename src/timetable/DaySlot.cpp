#include "timetable/DaySlot.h"

#include "timetable/ReadTimes.h"

namespace timetable
{

std::optional<TimeSpan> timeOf(const DaySlot& slot)
{
    if (!slot.start) {
        return std::nullopt;
    }
    const bool hasEnd = slot.end && *slot.end > *slot.start;
    return hasEnd ? between(*slot.start, *slot.end) : TimeSpan{*slot.start, kUsualLength};
}

} // namespace timetable
