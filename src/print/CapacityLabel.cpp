#include "print/CapacityLabel.h"

#include "paint/Inks.h"
#include "print/FittedText.h"

#include <QColor>
#include <QFontMetricsF>
#include <algorithm>

namespace print
{
namespace
{

constexpr form::Colour kFits = form::Colour::fromRgb(0, 0, 255);
constexpr form::Colour kOverfull = form::Colour::fromRgb(255, 0, 0);
constexpr form::Colour kGroup = form::Colour::fromRgb(220, 220, 220);

// Sizes in points.
constexpr double kFrame = 1.2;
constexpr double kPadding = 1.5;
// Boxes lower than this hold one line: the label then stands beside the text, on half the box.
constexpr double kOneLine = 18;

form::Font fontOf(const CapacityLabel& label)
{
    return {label.fontName, 7, true};
}

} // namespace

CapacityLabel capacityLabel(const plan::PlanBox& box, const QString& places)
{
    if (box.group && box.group->overfull) {
        return {kOverfull, box.group->sizeLabel};
    }
    const int size = box.cell.CellStudents != 0 ? box.cell.CellStudents : box.cell.CellCapacity;
    return {box.group ? kGroup : kFits, QString::number(size) + u'/' + places};
}

std::optional<CapacityLabel> othersLabel(const plan::PlanBox& box, const QString& fontName)
{
    const int others = box.cell.CellRowCount - 1;
    return others > 0
               ? std::optional(CapacityLabel{kGroup, u'+' + QString::number(others), fontName})
               : std::nullopt;
}

QRectF capacityPlace(const paint::DrawingTarget& target, const QRectF& box,
                     const CapacityLabel& label)
{
    const double point = target.PixelsPerPoint;
    const form::Font font = fontOf(label);
    const QFontMetricsF metrics(paperFont(font, target, font.points));
    const double most = box.height() < kOneLine * point ? box.width() / 2 : box.width();
    const double width =
        std::min(metrics.horizontalAdvance(label.text) + 2 * (kFrame + kPadding) * point, most);
    const double height = std::min(metrics.ascent() + 2 * kFrame * point, box.height());
    return {box.right() - width, box.bottom() - height, width, height};
}

QMarginsF reservedByCapacity(const paint::DrawingTarget& target, const QRectF& box,
                             const QRectF& place)
{
    const bool oneLine = box.height() < kOneLine * target.PixelsPerPoint;
    return oneLine ? QMarginsF(0, 0, place.width(), 0) : QMarginsF(0, 0, 0, place.height());
}

void drawCapacity(QPainter& surface, const paint::DrawingTarget& target, const QRectF& place,
                  const CapacityLabel& label)
{
    const double point = target.PixelsPerPoint;
    const auto within = [&place](double gap) { return place.adjusted(gap, gap, -gap, -gap); };
    surface.save();
    // The colour frames the label: black on the blue itself could not be read.
    surface.fillRect(place, paint::toColor(label.color));
    surface.fillRect(within(kFrame * point), Qt::white);
    surface.setPen(Qt::black);
    drawFitted(surface, target, fontOf(label), within((kFrame + kPadding / 2) * point),
               Qt::AlignCenter, label.text);
    surface.restore();
}

} // namespace print
