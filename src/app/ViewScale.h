#pragma once

#include "form/PlanForm.h"
#include "paint/DrawingTarget.h"

#include <QSize>

namespace app
{

/// The screen target with which the plan fills a view of this many pixels: the whole time axis
/// across and, where they stay legible, all rows of the page down. What then does not fit scrolls.
/// `axisEnd` is the end of the time axis in twips, `rows` the number of rows with row 0.
[[nodiscard]] paint::DrawingTarget fitPlan(const form::PlanForm& form, int axisEnd, int rows,
                                           QSize view);

} // namespace app
