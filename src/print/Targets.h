#pragma once

#include "paint/DrawingTarget.h"

#include <QPaintDevice>

namespace print
{

/// The screen's drawing target at 96 dots per inch; a window that fits the plan to its size
/// changes how many twips a pixel stands for.
[[nodiscard]] paint::DrawingTarget UseScreenTarget();

/// The drawing target of a printer or of anything else that paper is laid out for. Targets are
/// values: the screen's own is in force for the screen all the time, and there is nothing to
/// switch back.
[[nodiscard]] paint::DrawingTarget UsePrinterTarget(const QPaintDevice& printer);

} // namespace print
