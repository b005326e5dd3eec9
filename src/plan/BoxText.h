#pragma once

#include "plan/TextRuler.h"

#include <QPainter>
#include <QRectF>
#include <QString>

namespace plan
{

/// Sets a box text inside a rectangle on the screen (device pixels) with the painter's pen.
/// `format` is one of CellLayout's two. The font starts from the ruler's and shrinks as far as it
/// stays legible; what then does not fit ends in an ellipsis.
void drawBoxText(QPainter& surface, const QRectF& area, const QString& text, int format,
                 const TextRuler& ruler);

/// Smallest font size in pixels that a box text shrinks to.
constexpr int kSmallestText = 9;

} // namespace plan
