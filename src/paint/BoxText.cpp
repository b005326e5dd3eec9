#include "paint/BoxText.h"

#include "paint/FittingSize.h"
#include "paint/MeasuredWords.h"
#include "plan/BoxLines.h"
#include "plan/CellLayout.h"

#include <algorithm>

namespace paint
{

double widest(const TextRuler& ruler, const QStringList& lines)
{
    double width = 0;
    for (const QString& line : lines) {
        width = std::max(width, ruler.width(line));
    }
    return width;
}

namespace
{

/// The largest font, down to the smallest legible one, with which all lines fit the area: as they
/// are written if possible, else broken between words.
TextSetting fitText(const TextRuler& ruler, const QStringList& lines, const QRectF& area,
                    bool wordBreak, int largest, double leading)
{
    const MeasuredWords words(ruler, lines);
    const MeasuredWords::Extent written{static_cast<int>(lines.size()), widest(ruler, lines)};
    TextSetting setting{kSmallestText, lines, false};
    const int start = std::max(largest, kSmallestText);
    (void)fittingSize(start, kSmallestText, [&](int pixels) {
        // The area as it looks at the ruler's own size.
        const double scale = static_cast<double>(ruler.font().pixelSize()) / pixels;
        const double width = area.width() * scale;
        const double height = (area.height() + 1) * scale;
        const auto fits = [&](const MeasuredWords::Extent& set) {
            return leading * ruler.height() * set.lines <= height && set.width <= width;
        };
        if (!wordBreak && fits(written)) {
            setting = {pixels, lines};
        } else if (fits(words.extent(width))) {
            setting = {pixels, words.broken(width)};
        }
        return setting.fits;
    });
    return setting;
}

void drawLines(QPainter& surface, const QRectF& area, const TextSetting& setting,
               Qt::Alignment alignment, const TextRuler& ruler)
{
    const double scale = static_cast<double>(setting.pixels) / ruler.font().pixelSize();
    const double height = ruler.height() * scale;
    const double ascent = ruler.ascent() * scale;
    const auto count = static_cast<double>(setting.lines.size());
    // Lines that do not fit move closer together before they are cut.
    const double step = std::min(height, std::max(area.height() / count, ascent));
    const GlyphFont& font = ruler.inSize(setting.pixels);
    if (!setting.fits) { // a clip costs as much as the text
        surface.save();
        surface.setClipRect(area.adjusted(-2, -1, 2, 1), Qt::IntersectClip);
    }
    double top = area.top();
    if (alignment.testFlag(Qt::AlignVCenter)) {
        top += std::max(0.0, (area.height() - step * count) / 2);
    }
    for (const QString& line : setting.lines) {
        const QString shown = ruler.elided(line, area.width() / scale);
        const double left = area.width() - ruler.width(shown) * scale;
        const double indent = alignment.testFlag(Qt::AlignHCenter) ? left / 2
                              : alignment.testFlag(Qt::AlignRight) ? left
                                                                   : 0;
        font.draw(surface, {area.left() + indent, top + (step - height) / 2 + ascent}, shown);
        top += step;
    }
    if (!setting.fits) {
        surface.restore();
    }
}

bool holdsText(const QRectF& area)
{
    return area.width() >= 4 && area.height() >= 4;
}

} // namespace

TextSetting fitBoxText(const QRectF& area, const QString& text, int format, const TextRuler& ruler,
                       int largest, double leading)
{
    const QStringList written = plan::writtenLines(text);
    if (written.isEmpty() || !holdsText(area)) {
        return {};
    }
    return fitText(ruler, written, area, format == plan::CellLayout::kWordBreak, largest, leading);
}

void drawBoxText(QPainter& surface, const QRectF& area, const TextSetting& setting, int format,
                 const TextRuler& ruler)
{
    if (!setting.lines.isEmpty()) {
        drawLines(surface, area, setting,
                  format == plan::CellLayout::kWordBreak ? Qt::AlignLeft | Qt::AlignTop
                                                         : Qt::AlignCenter,
                  ruler);
    }
}

void drawBoxText(QPainter& surface, const QRectF& area, const QString& text, int format,
                 const TextRuler& ruler)
{
    drawBoxText(surface, area, fitBoxText(area, text, format, ruler, ruler.font().pixelSize()),
                format, ruler);
}

void drawLabelText(QPainter& surface, const QRectF& area, const QString& text,
                   Qt::AlignmentFlag side, const TextRuler& ruler)
{
    const QStringList written = plan::writtenLines(text);
    if (!written.isEmpty() && holdsText(area)) {
        drawLines(surface, area, fitText(ruler, written, area, false, ruler.font().pixelSize(), 1),
                  side | Qt::AlignVCenter, ruler);
    }
}

} // namespace paint
