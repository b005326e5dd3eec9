#include "timetable/Timetable.h"

#include <algorithm>

namespace timetable
{

std::span<const DaySlot> Timetable::slotsOf(int day) const
{
    const std::vector<DaySlot>& own = m_slots.at(static_cast<std::size_t>(day));
    return own.empty() ? m_slots.at(kMonday) : own;
}

const DaySlot* Timetable::slot(int day, int number) const
{
    const std::span<const DaySlot> daySlots = slotsOf(day);
    const auto found =
        std::find_if(daySlots.begin(), daySlots.end(),
                     [number](const DaySlot& each) { return each.number == number; });
    return found == daySlots.end() ? nullptr : &*found;
}

} // namespace timetable
