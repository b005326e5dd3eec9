#include "paint/PrinterCellText.h"

#include "paint/BoxText.h"
#include "paint/FittingSize.h"
#include "paint/MeasuredWords.h"
#include "plan/BoxLines.h"
#include "plan/CellLayout.h"
#include "runtime/Numbers.h"

#include <algorithm>
#include <optional>

namespace paint
{
namespace
{

// The smallest size, in points, that can be read from where one stands before a wall.
constexpr int kLegible = 7;
// How close lines that are short of room may move together, as a share of their height.
constexpr double kClosest = 0.88;

QFont inPoints(QFont font, const DrawingTarget& target, double points)
{
    font.setPixelSize(std::max(1, runtime::nearestInteger(points * target.PixelsPerPoint)));
    return font;
}

} // namespace

PrinterSetting printerSetting(const TextRuler& ruler, const DrawingTarget& target, QSizeF room,
                              const QString& text)
{
    const QStringList written = plan::writtenLines(text);
    const int start = std::max(1, target.FontSize);
    // The room as it looks at the ruler's own size.
    const auto seenAt = [&](int points) { return room * (static_cast<double>(start) / points); };
    const auto fits = [&](const QStringList& lines, int points) {
        const QSizeF seen = seenAt(points);
        return widest(ruler, lines) <= seen.width() &&
               ruler.height() * kClosest * static_cast<double>(lines.size()) <= seen.height();
    };
    const int points =
        fittingSize(start, 2, [&](int size) { return fits(written, size); }).value_or(1);
    const MeasuredWords words(ruler, written);
    const auto broken = [&](int size) { return words.broken(seenAt(size).width()); };
    const std::optional<int> larger = fittingSize(
        std::min(kLegible, start), points + 1, [&](int size) { return fits(broken(size), size); });
    return larger ? PrinterSetting{*larger, broken(*larger)} : PrinterSetting{points, written};
}

void PrinterCellText(QPainter& surface, const DrawingTarget& target, const QRectF& rectangle,
                     const QString& text, int format)
{
    const TextRuler ruler(inPoints(surface.font(), target, std::max(1, target.FontSize)));
    const PrinterSetting setting = printerSetting(ruler, target, rectangle.size(), text);
    if (setting.lines.isEmpty()) {
        return;
    }
    surface.save();
    surface.setFont(inPoints(surface.font(), target, setting.points));
    const auto count = static_cast<double>(setting.lines.size());
    const double height = ruler.height() * setting.points / std::max(1, target.FontSize);
    const double step = std::min(height, rectangle.height() / count);
    const bool centred = format == plan::CellLayout::kCentredLines;
    const Qt::Alignment alignment = Qt::AlignVCenter | (centred ? Qt::AlignHCenter : Qt::AlignLeft);
    double top = rectangle.top() + (centred ? (rectangle.height() - step * count) / 2 : 0);
    for (const QString& line : setting.lines) {
        surface.drawText(
            QRectF(rectangle.left(), top, rectangle.width(), step),
            static_cast<int>(alignment.toInt()) | Qt::TextSingleLine | Qt::TextDontClip, line);
        top += step;
    }
    surface.restore();
}

} // namespace paint
