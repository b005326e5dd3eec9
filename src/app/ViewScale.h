#pragma once

#include "form/PlanForm.h"
#include "paint/DrawingTarget.h"
#include "plan/ShownHours.h"

#include <QSize>

namespace app
{

/// The screen target with which the plan fills a view of this many pixels: these hours across,
/// beginning beside the rooms' names, and, where they stay legible, all rows of the page down. What
/// then does not fit scrolls. `rows` is the number of rows with row 0.
[[nodiscard]] paint::DrawingTarget fitPlan(const form::PlanForm& form,
                                           const plan::ShownHours& hours, int rows, QSize view);

} // namespace app
