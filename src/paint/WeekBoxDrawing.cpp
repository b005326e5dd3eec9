#include "paint/WeekBoxDrawing.h"

#include "answers/Words.h"
#include "paint/CellBox.h"
#include "paint/MeasuredWords.h"
#include "paint/WeekInks.h"

#include <algorithm>
#include <cmath>

namespace paint
{
namespace
{

// Characters of a text that is cut that still tell something, without the ellipsis.
constexpr qsizetype kTellingCharacters = 4;
// Times its own width that a box has at least when a label stands in its corner.
constexpr double kRoomForTag = 3;
// The label's size, of a line of text.
constexpr double kTagHeight = 0.9;
// Less of the height that it needs leaves a line out.
constexpr double kLeastOfLine = 0.8;
// Times a thin line that the frame of an exam is thick.
constexpr int kExamLines = 3;

QString tagText(const answers::WeekBox& box)
{
    return box.kind == timetable::MeetingKind::Exam ? QStringLiteral("Examen") : box.corner;
}

/// Where the label stands; empty where there is none.
QRectF tagPlace(const QString& tag, const QRect& place, const Lettering& text)
{
    const double height = kTagHeight * text.height();
    const double width = text.width(tag) + height / 2;
    const double share = tag.size() > 1 ? 1 : kRoomForTag;
    if (tag.isEmpty() || width * share > place.width() || 2 * height > place.height()) {
        return {};
    }
    return {place.x() + place.width() - width, static_cast<double>(place.y()), width, height};
}

QStringList fittingLines(const QStringList& lines, double height, double linePixels)
{
    if (height < kLeastOfLine * linePixels) {
        return {};
    }
    return lines.mid(0, std::max(1, static_cast<int>(std::floor(height / linePixels))));
}

void drawExamFrame(QPainter& surface, const DrawingTarget& target, const QRect& place)
{
    const int thick = std::max(1, static_cast<int>(std::lround(kExamLines * thinLine(target))));
    const int width = std::min(thick, place.width());
    const int height = std::min(thick, place.height());
    surface.fillRect(QRect(place.x(), place.y(), place.width(), height), kExamFrame);
    surface.fillRect(QRect(place.x(), place.bottom() + 1 - height, place.width(), height),
                     kExamFrame);
    surface.fillRect(QRect(place.x(), place.y(), width, place.height()), kExamFrame);
    surface.fillRect(QRect(place.right() + 1 - width, place.y(), width, place.height()),
                     kExamFrame);
}

BoxStyle styleOf(const answers::WeekBox& box, form::Colour fill, const Lettering& text)
{
    BoxStyle style;
    style.fill = fill;
    style.hatched = box.kind == timetable::MeetingKind::MakeUp;
    style.ruler = &text.ruler();
    return style;
}

/// The names of a list stay whole when it is broken into lines.
QString unbrokenNames(QString line)
{
    const QString separator = QStringLiteral(", ");
    return line.contains(separator)
               ? line.replace(u' ', QChar::Nbsp).replace(QStringLiteral(",\u00a0"), separator)
               : line;
}

void drawKind(QPainter& surface, const DrawingTarget& target, const answers::WeekBox& box,
              const BoxStyle& style, const QRect& place, const QStringList& lines)
{
    QStringList written;
    for (const QString& line : lines) {
        written << unbrokenNames(line);
    }
    surface.setFont(style.ruler->font());
    drawBox(surface, target, style, place, written.join(u'\n'));
    if (box.kind == timetable::MeetingKind::Exam) {
        drawExamFrame(surface, target, place);
    }
}

/// Whether the text, broken between words, fits the area in that size.
bool fits(const QString& text, const QRectF& area, const TextRuler& ruler, double scale)
{
    const QStringList lines(text);
    const MeasuredWords::Extent set = MeasuredWords(ruler, lines).extent(area.width() * scale);
    return set.width <= area.width() * scale &&
           set.lines * ruler.height() <= (area.height() + 1) * scale;
}

/// What of the text is worth writing in the smallest size.
QString tellingText(const QString& text, const QRectF& area, const TextRuler& ruler, int pixels)
{
    const double scale = static_cast<double>(ruler.font().pixelSize()) / pixels;
    const QString first = text.section(QStringLiteral(" +"), 0, 0);
    for (const QString& each : {text, first}) {
        if (fits(each, area, ruler, scale)) {
            return each;
        }
    }
    const QString cut = ruler.elided(first, area.width() * scale);
    const bool tells =
        cut.size() > kTellingCharacters && ruler.height() <= (area.height() + 1) * scale;
    return tells ? cut : QString();
}

} // namespace

void drawWeekBox(QPainter& surface, const DrawingTarget& target, const answers::WeekBox& box,
                 const QRect& place, form::Colour fill, const Lettering& text, int leastPixels)
{
    QStringList lines = box.lines;
    if (box.isOffSlots) {
        lines << answers::spanWords(box.time);
    }
    const QString tag = tagText(box);
    const QRectF corner = tagPlace(tag, place, text);
    const double line = text.height() * leastPixels / text.ruler().font().pixelSize();
    const bool isAbove =
        place.height() - corner.height() >= line * static_cast<double>(lines.size());
    BoxStyle style = styleOf(box, fill, text);
    style.reserved = isAbove ? QMarginsF(0, corner.height(), 0, 0)
                             : QMarginsF(corner.width(), 0, corner.width(), 0);
    const double height = place.height() - style.reserved.top();
    surface.save();
    drawKind(surface, target, box, style, place, fittingLines(lines, height, line));
    if (!corner.isEmpty()) {
        surface.fillRect(corner, kHeaderInk);
        surface.setPen(kWeekGround);
        text.draw(surface, corner, tag, Qt::AlignHCenter);
    }
    surface.restore();
}

void drawDenseWeekBox(QPainter& surface, const DrawingTarget& target, const answers::WeekBox& box,
                      const QRect& place, form::Colour fill, const Lettering& text, int leastPixels)
{
    BoxStyle style = styleOf(box, fill, text);
    style.tight = true;
    const QRectF area = textRectangle(target, style, place);
    surface.save();
    drawKind(surface, target, box, style, place,
             QStringList(tellingText(box.shortText, area, text.ruler(), leastPixels)));
    surface.restore();
}

void drawNothingThere(QPainter& surface, const DrawingTarget& target, const QRectF& area,
                      int pixels)
{
    const Lettering large(target, 2 * pixels);
    const QString sentence = QStringLiteral("Rien cette semaine");
    QRectF place(0, 0, std::min(area.width(), large.width(sentence) + 2.0 * pixels),
                 2 * large.height());
    place.moveCenter(area.center());
    surface.save();
    surface.fillRect(place, kWeekGround);
    surface.setPen(kHeaderInk);
    large.draw(surface, place, sentence, Qt::AlignHCenter);
    surface.restore();
}

} // namespace paint
