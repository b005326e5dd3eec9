#pragma once

#include "form/Colour.h"
#include "paint/DrawingTarget.h"
#include "paint/Inks.h"

#include <QColor>
#include <QPointF>
#include <QRectF>
#include <algorithm>

/// What the drawings of weeks share.
namespace paint
{

inline constexpr QColor kWeekGround(255, 255, 255);  ///< the slots of a day
inline constexpr QColor kPauseGround(240, 242, 245); ///< what lies between the slots
inline constexpr QColor kTitleGround(226, 232, 241); ///< behind the titles of the days
inline constexpr QColor kSlotLine(205, 211, 220);    ///< where slots begin and end
inline constexpr QColor kDayLine(120, 130, 145);     ///< between days
inline constexpr QColor kWeekCursor(178, 34, 34);    ///< around the box that keys have chosen
inline constexpr QColor kExamFrame(20, 20, 20);      ///< the thick frame of an exam

/// Device pixels of a thin line: one on the screen, on paper what every printer shows.
[[nodiscard]] inline double thinLine(const DrawingTarget& target)
{
    return target.TargetIsPrinter ? std::max(1.0, kFrameLine * target.PixelsPerPoint) : 1.0;
}

/// Whether the point lies in the place. Its right and bottom edges belong to the neighbour.
[[nodiscard]] inline bool holds(const QRectF& place, QPointF point)
{
    return point.x() >= place.x() && point.x() < place.x() + place.width() &&
           point.y() >= place.y() && point.y() < place.y() + place.height();
}

} // namespace paint
