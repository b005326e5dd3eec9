#pragma once

#include "context/DaySlots.h"
#include "context/TimeAxis.h"
#include "form/PlanForm.h"

/// The labels that stand along the time axis: the hour ticks above the rows, the totals below them.
namespace context
{

/// The screen's mapping from time to position.
[[nodiscard]] TimeAxis screenAxis(const form::PlanForm& form);

/// Places the tick labels along the axis; the first one stays where the design puts it.
void placeTicks(form::PlanForm& form);
/// Puts the slot labels at the foot of the window, `margin` twips above its inner bottom.
void placeTotals(form::PlanForm& form, int margin);

/// Position in twips where the plan's time ends: the last tick or the last slot's end.
[[nodiscard]] int axisEnd(const form::PlanForm& form, const DaySlots& slots);

} // namespace context
