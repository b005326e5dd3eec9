#include "context/DaySlots.h"

#include "runtime/TimeOfDay.h"

#include <algorithm>
#include <utility>

namespace context
{

int DaySlots::SlotCount() const
{
    return static_cast<int>(std::count_if(m_slots.begin(), m_slots.end(),
                                          [](const auto& slot) { return slot.has_value(); }));
}

void DaySlots::set(int number, std::optional<Slot> slot)
{
    m_slots.at(static_cast<std::size_t>(number - 1)) = std::move(slot);
}

bool DaySlots::OverrunsIntoSlot(int slot, int minutes) const
{
    const std::optional<Slot>& before = this->slot(slot - 1);
    return before && reaches(slot, before->startSeconds, minutes);
}

bool DaySlots::reaches(int number, int startSeconds, int minutes) const
{
    const std::optional<Slot>& reached = slot(number);
    return reached && minutes > runtime::minutesBetween(startSeconds, reached->startSeconds);
}

} // namespace context
