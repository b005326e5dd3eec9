#pragma once

#include "paint/TextRuler.h"

#include <QPainter>
#include <QRectF>
#include <QString>
#include <QStringList>

namespace paint
{

/// A text as it is set in an area.
struct TextSetting {
    int pixels = 0; ///< of the font
    QStringList lines;
    bool fits = true;
};

/// The setting of a box text that begins with a font of `largest` pixels. `leading` is the share of
/// a line's height that is enough for it: below 1 lines stand closer before they shrink.
[[nodiscard]] TextSetting fitBoxText(const QRectF& area, const QString& text, int format,
                                     const TextRuler& ruler, int largest, double leading = 1);
/// Draws it there.
void drawBoxText(QPainter& surface, const QRectF& area, const TextSetting& setting, int format,
                 const TextRuler& ruler);

/// Sets a box text inside a rectangle on the screen (device pixels) with the painter's pen.
/// `format` is one of CellLayout's two. The font starts from the ruler's and shrinks as far as it
/// stays legible; what then does not fit ends in an ellipsis.
void drawBoxText(QPainter& surface, const QRectF& area, const QString& text, int format,
                 const TextRuler& ruler);

/// Sets a row's name or number in the same way, vertically centred, at the left or right end of
/// the rectangle: in one line, else in a smaller size or in several lines, else cut.
void drawLabelText(QPainter& surface, const QRectF& area, const QString& text,
                   Qt::AlignmentFlag side, const TextRuler& ruler);

/// Width of the longest line, in pixels at the ruler's own size.
[[nodiscard]] double widest(const TextRuler& ruler, const QStringList& lines);

/// Smallest font size in pixels that a box text or a label shrinks to.
constexpr int kSmallestText = 9;

} // namespace paint
