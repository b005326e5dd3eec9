#include "print/FittedText.h"

#include "runtime/Numbers.h"

#include <QFontMetricsF>
#include <algorithm>

namespace print
{

QFont paperFont(const form::Font& font, const paint::DrawingTarget& target, int points)
{
    QFont result;
    result.setFamilies({font.name, QStringLiteral("Arial"), QStringLiteral("Liberation Sans")});
    result.setBold(font.bold);
    result.setPixelSize(std::max(1, runtime::nearestInteger(points * target.PixelsPerPoint)));
    return result;
}

double drawFitted(QPainter& surface, const paint::DrawingTarget& target, const form::Font& font,
                  const QRectF& rectangle, Qt::Alignment alignment, const QString& text)
{
    int points = std::max(1, font.points);
    QFont fitted = paperFont(font, target, points);
    while (points > 1 && QFontMetricsF(fitted).horizontalAdvance(text) > rectangle.width()) {
        fitted = paperFont(font, target, --points);
    }
    surface.setFont(fitted);
    surface.drawText(rectangle, static_cast<int>(alignment) | Qt::TextSingleLine | Qt::TextDontClip,
                     text);
    return QFontMetricsF(fitted).horizontalAdvance(text);
}

} // namespace print
