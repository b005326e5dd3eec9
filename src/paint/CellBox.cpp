#include "paint/CellBox.h"

#include "paint/BoxText.h"
#include "paint/Inks.h"
#include "paint/PrinterCellText.h"
#include "plan/BoxLines.h"
#include "runtime/Numbers.h"

#include <QColor>
#include <algorithm>
#include <cmath>

namespace paint
{
namespace
{

using runtime::nearestInteger;

// Sizes on paper, in points: the gap between frame and text, the hatching.
constexpr double kTextGap = 1.5;
constexpr double kHatchStep = 6.5;
constexpr double kHatchLine = 0.5;
// From this contrast of text and row on, crosses of the text's colour leave enough of it.
constexpr double kAmpleContrast = 14;
// What a screen in a lit room adds to every luminance, as the contrast counts it.
constexpr double kFlare = 0.05;

/// Relative luminance, 0 for black to 1 for white.
double luminance(form::Colour color)
{
    const auto linear = [](int component) {
        const double share = component / 255.0;
        return share <= 0.03928 ? share / 12.92 : std::pow((share + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * linear(color.red()) + 0.7152 * linear(color.green()) +
           0.0722 * linear(color.blue());
}

/// The colour of the crosses on a row of this colour. A text that contrasts little with its row
/// would lose more to crosses of its own colour: there they have the other one and help it. On very
/// light and very dark rows only the text's colour shows.
QColor hatchingOn(form::Colour fill)
{
    const form::Colour ink = readableOn(fill);
    const bool likeText = contrastRatio(fill, ink) >= kAmpleContrast;
    QColor color = toColor(likeText ? ink : readableOn(ink));
    color.setAlpha(likeText ? 64 : 160);
    return color;
}

/// Diagonal crosses that the text stays readable over.
void drawHatching(QPainter& surface, const DrawingTarget& target, const QRect& box,
                  const QColor& ink)
{
    if (!target.TargetIsPrinter) {
        surface.fillRect(box, QBrush(ink, Qt::DiagCrossPattern));
        return;
    }
    // A pattern is as fine as the printer's pixels, so on paper the lines are drawn one by one.
    const double step = kHatchStep * target.PixelsPerPoint;
    surface.save();
    surface.setClipRect(box, Qt::IntersectClip);
    surface.setPen(QPen(ink, kHatchLine * target.PixelsPerPoint));
    const int lines = static_cast<int>(std::ceil((box.width() + box.height()) / step));
    for (int line = 0; line < lines; ++line) {
        const double x = box.left() - box.height() + line * step;
        surface.drawLine(QPointF(x, box.top()),
                         QPointF(x + box.height(), box.top() + box.height()));
        surface.drawLine(QPointF(x, box.top() + box.height()),
                         QPointF(x + box.height(), box.top()));
    }
    surface.restore();
}

void drawFrame(QPainter& surface, const DrawingTarget& target, const QRect& box)
{
    if (target.TargetIsPrinter) {
        surface.setBrush(Qt::NoBrush);
        surface.setPen(QPen(kFrameInk, kFrameLine * target.PixelsPerPoint));
        surface.drawRect(box.adjusted(0, 0, -1, -1));
        return;
    }
    // Filling the pixels of the four sides is quicker than drawing them.
    surface.fillRect(QRect(box.topLeft(), box.topRight()), kFrameInk);
    surface.fillRect(QRect(box.bottomLeft(), box.bottomRight()), kFrameInk);
    surface.fillRect(QRect(box.topLeft(), box.bottomLeft()), kFrameInk);
    surface.fillRect(QRect(box.topRight(), box.bottomRight()), kFrameInk);
}

} // namespace

double contrastRatio(form::Colour first, form::Colour second)
{
    const auto [darker, lighter] = std::minmax({luminance(first), luminance(second)});
    return (lighter + kFlare) / (darker + kFlare);
}

form::Colour readableOn(form::Colour background)
{
    constexpr form::Colour black = form::Colour::fromRgb(0, 0, 0);
    constexpr form::Colour white = form::Colour::fromRgb(255, 255, 255);
    const double light = luminance(background) + kFlare;
    return light / kFlare >= (1 + kFlare) / light ? black : white;
}

QRectF textRectangle(const DrawingTarget& target, const BoxStyle& style, const QRect& box)
{
    const double side = style.tight ? 1.0 / 3 : 1;
    const QMarginsF frame = target.TargetIsPrinter
                                ? QMarginsF(kTextGap, 0, kTextGap, 0) * side * target.PixelsPerPoint
                                : QMarginsF(3 * side, 1, 3 * side, 1);
    return QRectF(box).marginsRemoved(style.reserved + frame);
}

QRectF boxArea(const DrawingTarget& target, double x, double y, double width, int rowHeight)
{
    return {x + target.TargetXOffset, y, target.toPixelsX(width), target.toPixelsY(rowHeight)};
}

QRect boxRectangle(const DrawingTarget& target, double x, double y, double minutes, int rowHeight)
{
    const QRectF area =
        boxArea(target, x, y, context::widthOf(minutes, target.SlotWidth), rowHeight);
    const int left = nearestInteger(area.left());
    const int top = nearestInteger(area.top());
    return {left, top, nearestInteger(area.right()) - left, nearestInteger(area.bottom()) - top};
}

void DrawCellBox(QPainter& surface, const DrawingTarget& target, const BoxStyle& style, double x,
                 double y, int minutes, const QString& text)
{
    drawBox(surface, target, style, boxRectangle(target, x, y, minutes, style.rowHeight), text);
}

void drawBox(QPainter& surface, const DrawingTarget& target, const BoxStyle& style,
             const QRect& box, const QString& text)
{
    if (box.width() <= 0 || box.height() <= 0) {
        return;
    }
    surface.save();
    surface.setRenderHint(QPainter::Antialiasing, false);
    surface.fillRect(box, toColor(style.fill));
    if (style.hatched) {
        drawHatching(surface, target, box, hatchingOn(style.fill));
    }
    drawFrame(surface, target, box);
    surface.setPen(toColor(readableOn(style.fill)));
    const QRectF room = textRectangle(target, style, box);
    const QString shown = plan::SanitizeCellText(text);
    if (target.TargetIsPrinter) {
        PrinterCellText(surface, target, room, shown, style.textFormat);
    } else if (style.ruler != nullptr && style.setting != nullptr) {
        drawBoxText(surface, room, *style.setting, style.textFormat, *style.ruler);
    } else if (style.ruler != nullptr) {
        drawBoxText(surface, room, shown, style.textFormat, *style.ruler);
    } else {
        drawBoxText(surface, room, shown, style.textFormat, TextRuler(surface.font()));
    }
    surface.restore();
}

} // namespace paint
