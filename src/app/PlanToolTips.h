#pragma once

#include "plan/PlanContent.h"
#include "plan/PlanState.h"

#include <QString>

/// The words of the plan's tooltips, besides those of an absence (absences/MarkerToolTips.h). None
/// is rich text.
namespace app
{

/// Of a box, wherever in it the mouse is: room, start and length, its text without the cuts that a
/// narrow box makes, its week, what hatching, labels and pictures say, and what overlaps it.
[[nodiscard]] QString boxToolTip(const form::PlanForm& form, const plan::PlanRow& row,
                                 const plan::PlanBox& box);

/// The classes behind a group counter, each on a line of its own.
[[nodiscard]] QString groupText(const plan::GroupCounter& group);

/// Of the room at this height, in twips; empty where no row is shown.
[[nodiscard]] QString roomToolTip(const plan::PlanState& state, double top);

/// Of the line of totals; empty while it shows none or belongs to the last choice.
[[nodiscard]] QString totalsToolTip(const plan::PlanState& state);

} // namespace app
