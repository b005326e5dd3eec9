#include "print/FittedText.h"

#include "paint/FittingSize.h"
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
    const auto widthAt = [&](int points) {
        return QFontMetricsF(paperFont(font, target, points)).horizontalAdvance(text);
    };
    const int points = paint::fittingSize(font.points, 2, [&](int size) {
                           return widthAt(size) <= rectangle.width();
                       }).value_or(1);
    surface.setFont(paperFont(font, target, points));
    surface.drawText(rectangle, static_cast<int>(alignment) | Qt::TextSingleLine | Qt::TextDontClip,
                     text);
    return widthAt(points);
}

} // namespace print
