#pragma once

#include "form/Colour.h"
#include "paint/BoxText.h"
#include "paint/DrawingTarget.h"
#include "paint/TextRuler.h"
#include "plan/CellLayout.h"

#include <QMarginsF>
#include <QPainter>
#include <QRect>
#include <QRectF>
#include <QString>

namespace paint
{

/// How one box looks.
struct BoxStyle {
    form::Colour fill;
    bool hatched = false; ///< diagonal crosses: a make-up
    int rowHeight = 0;    ///< twips: the height of `Salle`(0); for boxes of the plan
    int textFormat = plan::CellLayout::kCentredLines;
    /// Device pixels that small labels over the box take from its text, at each side.
    QMarginsF reserved;
    bool tight = false; ///< hardly any room between frame and text: boxes that have none to spare
    /// How the text is set; without one, as large as it fits.
    const TextSetting* setting = nullptr;
    /// Measures the box texts of a whole page; without one the painter's font serves.
    const TextRuler* ruler = nullptr;
};

/// Where a box lies, in device pixels not yet rounded: what a click hits and what the labels over
/// it lean on. `x` and `y` are its top left corner in device pixels before the target's offset,
/// `width` and `rowHeight` its size in twips.
[[nodiscard]] QRectF boxArea(const DrawingTarget& target, double x, double y, double width,
                             int rowHeight);

/// The whole pixels of a box's area that are drawn; `minutes` is its length in time.
[[nodiscard]] QRect boxRectangle(const DrawingTarget& target, double x, double y, double minutes,
                                 int rowHeight);

/// Where the text of such a box goes: off the frame and off what is reserved.
[[nodiscard]] QRectF textRectangle(const DrawingTarget& target, const BoxStyle& style,
                                   const QRect& box);

/// Draws one box of whole device pixels with its text; nothing where it has none. The one drawing
/// of a box, on whatever the painter paints.
void drawBox(QPainter& surface, const DrawingTarget& target, const BoxStyle& style,
             const QRect& box, const QString& text);

/// Draws one box of the plan in the same way.
void DrawCellBox(QPainter& surface, const DrawingTarget& target, const BoxStyle& style, double x,
                 double y, int minutes, const QString& text);

/// Black or white, whichever reads better on the colour.
[[nodiscard]] form::Colour readableOn(form::Colour background);

/// Contrast of two colours from 1 to 21, as the Web Content Accessibility Guidelines define it.
[[nodiscard]] double contrastRatio(form::Colour first, form::Colour second);

} // namespace paint
