#include "paint/UnknownMark.h"

#include "paint/CellBox.h"
#include "paint/Inks.h"
#include "runtime/Numbers.h"

#include <QColor>
#include <algorithm>
#include <cmath>

namespace paint
{
namespace
{

constexpr QColor kFill(225, 225, 225);
constexpr QColor kLines(150, 150, 150);
constexpr QColor kInk(40, 40, 40);
// Between two lines across, in points.
constexpr double kStep = 5;
// The question mark: its share of the row's height, and its largest size in points.
constexpr double kMarkShare = 0.72;
constexpr double kLargestMark = 14;

void drawLines(QPainter& surface, const DrawingTarget& target, const QRect& box)
{
    surface.setPen(QPen(kLines, std::max(1.0, kFrameLine * target.PixelsPerPoint)));
    const double step = kStep * target.PixelsPerPoint;
    const int first = box.left() - box.height();
    const int lines = static_cast<int>(std::ceil((box.right() - first) / step));
    for (int line = 0; line < lines; ++line) {
        const double x = first + line * step;
        surface.drawLine(QPointF(x, box.top() + box.height()),
                         QPointF(x + box.height(), box.top()));
    }
}

QFont markFont(const DrawingTarget& target, int height)
{
    const double largest = kLargestMark * target.PixelsPerPoint;
    return planFont(std::max(1, runtime::nearestInteger(std::min(kMarkShare * height, largest))),
                    true);
}

} // namespace

void drawUnknownMark(QPainter& surface, const DrawingTarget& target, double x, double y,
                     int minutes, int rowHeight)
{
    drawUnknownMark(surface, target, boxRectangle(target, x, y, minutes, rowHeight));
}

void drawUnknownMark(QPainter& surface, const DrawingTarget& target, const QRect& box)
{
    if (box.width() <= 0 || box.height() <= 0) {
        return;
    }
    surface.save();
    surface.setClipRect(box, Qt::IntersectClip);
    surface.fillRect(box, kFill);
    drawLines(surface, target, box);
    surface.setFont(markFont(target, box.height()));
    const int width = std::min(box.width(), 2 * surface.fontMetrics().horizontalAdvance(u'?'));
    QRect around(0, 0, width, box.height());
    around.moveCenter(box.center());
    surface.fillRect(around, kFill); // the lines would run through it
    surface.setPen(kInk);
    surface.drawText(around, Qt::AlignCenter | Qt::TextDontClip, QStringLiteral("?"));
    surface.setBrush(Qt::NoBrush);
    surface.setPen(QPen(kLines, std::max(1.0, kFrameLine * target.PixelsPerPoint)));
    surface.drawRect(box.adjusted(0, 0, -1, -1));
    surface.restore();
}

} // namespace paint
