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

/// Draws one box of a week in a box of the plan's: what is in it, with its time where the
/// hours beside it do not tell it, as many lines as find room in the smallest size, `leastPixels`;
/// a make-up hatched, an exam in a thick frame; in the corner a label for week A or B and for an
/// exam, where there is room for one.
void drawWeekBox(QPainter& surface, const DrawingTarget& target, const answers::WeekBox& box,
                 const QRect& place, form::Colour fill, const Lettering& text, int leastPixels);

/// The same for boxes that have hardly any room: their short text, with the subject where there is
/// ample room, or as much of it as still tells something, or nothing; and no label.
void drawDenseWeekBox(QPainter& surface, const DrawingTarget& target, const answers::WeekBox& box,
                      const QRect& place, form::Colour fill, const Lettering& text,
                      int leastPixels);

/// Says in the middle of an area that there is nothing.
void drawNothingThere(QPainter& surface, const DrawingTarget& target, const QRectF& area,
                      int pixels, const QString& sentence = QStringLiteral("Rien cette semaine"));

} // namespace paint
