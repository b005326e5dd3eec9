#pragma once

#include "plan/PlanContent.h"
#include "plan/PlanState.h"

#include <QString>

/// The words of the plan's tooltips, besides those of an absence (absences/MarkerToolTips.h). None
/// is rich text.
namespace app
{

/// Of a box: room, start and length, its text without the cuts that a narrow box makes, and what
/// hatching, red label and pictures say.
[[nodiscard]] QString boxToolTip(const form::PlanForm& form, const plan::PlanRow& row,
                                 const plan::PlanBox& box);

/// Of the room label at this height, in twips; empty where there is none.
[[nodiscard]] QString roomToolTip(const form::PlanForm& form, double top);

/// Of the line of totals; empty while it belongs to the last choice.
[[nodiscard]] QString totalsToolTip(const plan::PlanState& state);

} // namespace app
