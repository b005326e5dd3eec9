#pragma once

#include <QDate>
#include <QDateTime>
#include <QPainter>
#include <QRectF>
#include <optional>

namespace paint
{

/// Where the line of the clock stands on the plan of a day, in minutes since midnight: on today's
/// alone.
[[nodiscard]] std::optional<int> clockMinute(const QDateTime& now, QDate shown);

/// "09:05".
[[nodiscard]] QString clockText(int minute);

/// Draws the line at `x` down over the boxes, with the time above it among the hours. None before
/// the first hour that is shown and after the last: `boxes` is as wide as these are.
void drawClockLine(QPainter& surface, double x, const QRectF& hours, const QRectF& boxes,
                   int minute);

} // namespace paint
