#pragma once

#include "context/DaySlots.h"
#include "plan/PlanContent.h"

#include <functional>
#include <vector>

/// The plan as a table with a column per slot, for those who read it cell by cell.
namespace plan
{

/// The slot numbers of the columns, in order: the day's slots, and those that a box or an
/// unknown cell stands in although the day does not have them.
[[nodiscard]] std::vector<int>
slotColumns(const context::DaySlots& slots,
            const std::vector<std::reference_wrapper<const PlanContent>>& contents);

/// The box of a slot; null when there is none.
[[nodiscard]] const PlanBox* boxAt(const PlanRow& row, int slot);

/// Whether it is unknown what is in the room then.
[[nodiscard]] bool isUnknown(const PlanRow& row, int slot);

/// How many columns a box in `columns`[`column`] covers: its own and those that it reaches into, as
/// long as they are free.
[[nodiscard]] std::size_t columnsOf(const context::DaySlots& slots, const PlanRow& row,
                                    const PlanBox& box, const std::vector<int>& columns,
                                    std::size_t column);

} // namespace plan
