#include "paint/Lettering.h"

#include "paint/BoxText.h"
#include "paint/FittingSize.h"
#include "paint/Inks.h"
#include "runtime/Numbers.h"

#include <QFontMetricsF>
#include <algorithm>

namespace paint
{
namespace
{

// Points of the smallest text on paper.
constexpr int kSmallestPoints = 4;

} // namespace

Lettering::Lettering(const DrawingTarget& target, int pixels, bool bold)
    : m_target(target), m_ruler(planFont(std::max(1, pixels), bold))
{
}

void Lettering::draw(QPainter& surface, const QRectF& area, const QString& text,
                     Qt::AlignmentFlag side) const
{
    if (!m_target.TargetIsPrinter) {
        drawLabelText(surface, area, text, side, m_ruler);
        return;
    }
    const auto fontOf = [this](int points) {
        QFont font = m_ruler.font();
        font.setPixelSize(std::max(1, runtime::nearestInteger(points * m_target.PixelsPerPoint)));
        return font;
    };
    const int largest =
        runtime::nearestInteger(m_ruler.font().pixelSize() / m_target.PixelsPerPoint);
    const int points = fittingSize(largest, kSmallestPoints, [&](int size) {
                           const QFontMetricsF metrics(fontOf(size));
                           return metrics.horizontalAdvance(text) <= area.width() &&
                                  metrics.ascent() <= area.height();
                       }).value_or(kSmallestPoints);
    surface.setFont(fontOf(points));
    const QString shown =
        QFontMetricsF(fontOf(points)).elidedText(text, Qt::ElideRight, area.width());
    surface.drawText(
        area, static_cast<int>(side | Qt::AlignVCenter) | Qt::TextSingleLine | Qt::TextDontClip,
        shown);
}

} // namespace paint
