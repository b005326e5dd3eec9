#pragma once

#include "paint/DrawingTarget.h"
#include "paint/TextRuler.h"

#include <QPainter>
#include <QRectF>
#include <QSizeF>
#include <QString>
#include <QStringList>

namespace paint
{

/// How a box text is set on paper.
struct PrinterSetting {
    int points = 0;
    QStringList lines;
};

/// The setting of a text that has `room` device pixels. The font starts from the target's size and
/// is lowered one point at a time while a line is wider than the room, or the lines higher; never
/// below 1, there is no font of 0 points. `ruler` measures at the target's size.
/// Where that ends in a size that nobody can read on a wall, lines are broken between words if
/// this lets the text be larger.
[[nodiscard]] PrinterSetting printerSetting(const TextRuler& ruler, const DrawingTarget& target,
                                            QSizeF room, const QString& text);

/// Sets a box text inside a rectangle on paper (device pixels) with the painter's pen and font
/// family. `format` is one of CellLayout's two. Nothing is left out: paper has no tooltip that
/// could tell it.
void PrinterCellText(QPainter& surface, const DrawingTarget& target, const QRectF& rectangle,
                     const QString& text, int format);

} // namespace paint
