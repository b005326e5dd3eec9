#include "plan/BoxText.h"

#include "plan/RoomOccupancy.h"

#include <QFontMetricsF>
#include <QRegularExpression>
#include <QStringList>
#include <QTextLayout>
#include <algorithm>

namespace plan
{
namespace
{

/// The lines as written, without the blanks around them and without empty ones: a box text ends
/// with a separator that would push its lines off the middle.
QStringList writtenLines(const QString& text)
{
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\r|\n"));
    QStringList lines;
    for (const QString& line : text.split(lineEnd)) {
        const QString trimmed = line.simplified();
        if (!trimmed.isEmpty()) {
            lines.append(trimmed);
        }
    }
    return lines;
}

double widest(const QFontMetricsF& metrics, const QStringList& lines)
{
    double width = 0;
    for (const QString& line : lines) {
        width = std::max(width, metrics.horizontalAdvance(line));
    }
    return width;
}

/// Breaks lines between words so that they fit the width where they can.
QStringList brokenLines(const QStringList& lines, const QFont& font, double width)
{
    QStringList broken;
    for (const QString& line : lines) {
        QTextLayout layout(line, font);
        layout.beginLayout();
        for (QTextLine part = layout.createLine(); part.isValid(); part = layout.createLine()) {
            part.setLineWidth(width);
            broken.append(line.mid(part.textStart(), part.textLength()).trimmed());
        }
        layout.endLayout();
    }
    return broken;
}

struct Setting {
    QFont font;
    QStringList lines;
};

bool fits(const Setting& setting, const QRectF& area)
{
    const QFontMetricsF metrics(setting.font);
    return metrics.height() * static_cast<double>(setting.lines.size()) <= area.height() + 1 &&
           widest(metrics, setting.lines) <= area.width();
}

/// The largest font, down to the smallest legible one, with which all lines fit the area: as they
/// are written if possible, else broken between words.
Setting fitText(QFont font, const QStringList& lines, const QRectF& area, bool wordBreak)
{
    Setting setting{font, lines};
    for (int size = std::max(font.pixelSize(), kSmallestText); size >= kSmallestText; --size) {
        font.setPixelSize(size);
        setting = {font, lines};
        if (!wordBreak && fits(setting, area)) {
            return setting;
        }
        const Setting broken{font, brokenLines(lines, font, area.width())};
        if (fits(broken, area)) {
            return broken;
        }
    }
    return setting;
}

} // namespace

void drawBoxText(QPainter& surface, const QRectF& area, const QString& text, int format)
{
    const QStringList written = writtenLines(text);
    if (written.isEmpty() || area.width() < 4 || area.height() < 4) {
        return;
    }
    const bool wordBreak = format == CellLayout::kWordBreak;
    const Setting setting = fitText(surface.font(), written, area, wordBreak);
    const QFontMetricsF metrics(setting.font);
    surface.save();
    surface.setFont(setting.font);
    surface.setClipRect(area.adjusted(-2, -1, 2, 1), Qt::IntersectClip);
    const double lineHeight = std::min(
        metrics.height(), std::max(area.height() / static_cast<double>(setting.lines.size()),
                                   metrics.ascent() + 0.0));
    const double block = lineHeight * static_cast<double>(setting.lines.size());
    double top = wordBreak ? area.top() : area.top() + std::max(0.0, (area.height() - block) / 2);
    const int alignment = wordBreak ? Qt::AlignLeft : Qt::AlignHCenter;
    for (const QString& line : setting.lines) {
        const QString shown = metrics.elidedText(line, Qt::ElideRight, area.width());
        surface.drawText(QRectF(area.left(), top, area.width(), lineHeight),
                         alignment | Qt::AlignVCenter | Qt::TextSingleLine | Qt::TextDontClip,
                         shown);
        top += lineHeight;
    }
    surface.restore();
}

} // namespace plan
