#pragma once

#include "paint/DrawingTarget.h"
#include "paint/TextRuler.h"

#include <QPainter>
#include <QRectF>
#include <QString>

namespace paint
{

/// Sets single lines in one size and weight, on the screen as on paper: what is too wide gets
/// smaller as far as it stays legible, and is then cut.
class Lettering
{
public:
    /// `pixels`: the size that texts start from.
    Lettering(const DrawingTarget& target, int pixels, bool bold = false);

    /// With the painter's pen, vertically centred in the rectangle, at its left end, in its middle
    /// or at its right end.
    void draw(QPainter& surface, const QRectF& area, const QString& text,
              Qt::AlignmentFlag side) const;
    /// Pixels that the text takes in the size that texts start from.
    [[nodiscard]] double width(const QString& text) const { return m_ruler.width(text); }
    /// Pixels from line to line in that size.
    [[nodiscard]] double height() const { return m_ruler.height(); }
    [[nodiscard]] const TextRuler& ruler() const { return m_ruler; }

private:
    DrawingTarget m_target;
    TextRuler m_ruler;
};

} // namespace paint
