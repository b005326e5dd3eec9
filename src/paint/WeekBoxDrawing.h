#pragma once

#include "answers/WeekBox.h"
#include "form/Colour.h"
#include "paint/DrawingTarget.h"
#include "paint/Lettering.h"

#include <QPainter>
#include <QRect>
#include <QRectF>

namespace paint
{

/// Draws one box of a week: what is in it, as many of its lines as find room, in a box of the
/// plan's; a make-up hatched, an exam in a thick frame; a label in the corner for week A or B and
/// for an exam, where there is room for one. `linePixels`: what a line needs at least, or else the
/// less important ones are left out.
void drawWeekBox(QPainter& surface, const DrawingTarget& target, const answers::WeekBox& box,
                 const QRect& place, form::Colour fill, const Lettering& text, double linePixels);

/// Says in the middle of an area that there is nothing.
void drawNothingThere(QPainter& surface, const DrawingTarget& target, const QRectF& area,
                      int pixels);

} // namespace paint
