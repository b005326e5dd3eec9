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

struct Setting {
    int pixels = 0;
    QStringList lines;
    bool fits = true;
};

/// The largest font, down to the smallest legible one, with which all lines fit the area: as they
/// are written if possible, else broken between words.
Setting fitText(const TextRuler& ruler, const QStringList& lines, const QRectF& area,
                bool wordBreak)
{
    const MeasuredWords words(ruler, lines);
    const MeasuredWords::Extent written{static_cast<int>(lines.size()), widest(ruler, lines)};
    Setting setting{kSmallestText, lines, false};
    const int start = std::max(ruler.font().pixelSize(), kSmallestText);
    (void)fittingSize(start, kSmallestText, [&](int pixels) {
        // The area as it looks at the ruler's own size.
        const double scale = static_cast<double>(ruler.font().pixelSize()) / pixels;
        const double width = area.width() * scale;
        const double height = (area.height() + 1) * scale;
        const auto fits = [&](const MeasuredWords::Extent& set) {
            return ruler.height() * set.lines <= height && set.width <= width;
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

void drawLines(QPainter& surface, const QRectF& area, const Setting& setting,
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

void drawBoxText(QPainter& surface, const QRectF& area, const QString& text, int format,
                 const TextRuler& ruler)
{
    const QStringList written = plan::writtenLines(text);
    if (written.isEmpty() || !holdsText(area)) {
        return;
    }
    const bool wordBreak = format == plan::CellLayout::kWordBreak;
    drawLines(surface, area, fitText(ruler, written, area, wordBreak),
              wordBreak ? Qt::AlignLeft | Qt::AlignTop : Qt::AlignCenter, ruler);
}

void drawLabelText(QPainter& surface, const QRectF& area, const QString& text,
                   Qt::AlignmentFlag side, const TextRuler& ruler)
{
    const QStringList written = plan::writtenLines(text);
    if (!written.isEmpty() && holdsText(area)) {
        drawLines(surface, area, fitText(ruler, written, area, false), side | Qt::AlignVCenter,
                  ruler);
    }
}

} // namespace paint
