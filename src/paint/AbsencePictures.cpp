#include "paint/AbsencePictures.h"

#include <QColor>
#include <QPen>
#include <QPolygonF>
#include <algorithm>

namespace paint
{
namespace
{

/// Width of the line around a picture of that side.
double outlineOf(double side)
{
    return std::max(1.0, side * 0.05);
}

/// The square in the middle of the place that the outline's inner half leaves.
QRectF squareIn(const QRectF& place)
{
    const double side = std::min(place.width(), place.height());
    const double margin = outlineOf(side) / 2;
    QRectF square(0, 0, side, side);
    square.moveCenter(place.center());
    return square.marginsRemoved(QMarginsF(margin, margin, margin, margin));
}

} // namespace

void paintClassAbsent(QPainter& surface, const QRectF& place)
{
    const QRectF disc = squareIn(place);
    const double arm = disc.width() * 0.22;
    const QPointF centre = disc.center();
    surface.save();
    surface.setRenderHint(QPainter::Antialiasing);
    surface.setPen(QPen(Qt::white, outlineOf(disc.width())));
    surface.setBrush(QColor(190, 20, 30));
    surface.drawEllipse(disc);
    surface.setPen(
        QPen(Qt::white, std::max(1.5, disc.width() * 0.14), Qt::SolidLine, Qt::RoundCap));
    surface.drawLine(centre + QPointF(-arm, -arm), centre + QPointF(arm, arm));
    surface.drawLine(centre + QPointF(-arm, arm), centre + QPointF(arm, -arm));
    surface.restore();
}

void paintStudentAbsent(QPainter& surface, const QRectF& place)
{
    const QRectF square = squareIn(place);
    const auto at = [&square](double x, double y) {
        return QPointF(square.left() + x * square.width(), square.top() + y * square.height());
    };
    surface.save();
    surface.setRenderHint(QPainter::Antialiasing);
    surface.setPen(QPen(QColor(90, 45, 0), outlineOf(square.width())));
    surface.setBrush(QColor(255, 170, 0));
    surface.drawPolygon(QPolygonF({at(0.5, 0.0), at(1.0, 1.0), at(0.0, 1.0)}));
    surface.setPen(Qt::NoPen);
    surface.setBrush(QColor(60, 30, 0));
    surface.drawEllipse(at(0.5, 0.5), square.width() * 0.11, square.height() * 0.11);
    surface.drawChord(QRectF(at(0.29, 0.64), at(0.71, 1.14)), 0, 180 * 16);
    surface.restore();
}

} // namespace paint
