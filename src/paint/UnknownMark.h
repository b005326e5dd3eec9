#pragma once

#include "paint/DrawingTarget.h"

#include <QPainter>
#include <QRect>

namespace paint
{

/// Draws a cell of which it is not known what is in it: grey, with lines across and a question
/// mark. Nothing else on the plan looks like it, in black and white either. `x` and `y` are its top
/// left corner in device pixels before the target's offset, `rowHeight` is in twips.
void drawUnknownMark(QPainter& surface, const DrawingTarget& target, double x, double y,
                     int minutes, int rowHeight);

/// The same over whole device pixels.
void drawUnknownMark(QPainter& surface, const DrawingTarget& target, const QRect& box);

} // namespace paint
