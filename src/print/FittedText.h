#pragma once

#include "form/Controls.h"
#include "paint/DrawingTarget.h"

#include <QFont>
#include <QPainter>
#include <QRectF>
#include <QString>

namespace print
{

/// A font of the form on a target, in the target's pixels. A system without the family gets a
/// similar one.
[[nodiscard]] QFont paperFont(const form::Font& font, const paint::DrawingTarget& target,
                              int points);

/// Draws one line of text inside a rectangle (device pixels) with the painter's pen, in a smaller
/// size when it would not fit. Returns the width that it takes.
double drawFitted(QPainter& surface, const paint::DrawingTarget& target, const form::Font& font,
                  const QRectF& rectangle, Qt::Alignment alignment, const QString& text);

} // namespace print
