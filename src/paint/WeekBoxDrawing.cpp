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
// The share of a box's width or height that it takes at most.
constexpr int kExamShare = 6;
// The share of a box's width that a label may take from both sides of its text.
constexpr double kSideShare = 0.3;

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

/// The label of a box, and what it takes from the text.
struct Corner {
    QRectF label; ///< empty where there is none
    QMarginsF reserved;
};

/// The label stands beside the text where that costs hardly any width, or else above it. One that
/// would leave no room for any text stands back: the frame tells an exam as well.
Corner cornerOf(const QString& tag, const QRect& place, const Lettering& text, double line)
{
    const QRectF label = tagPlace(tag, place, text);
    const QMarginsF above(0, label.height(), 0, 0);
    const QMarginsF beside(label.width(), 0, label.width(), 0);
    const double below = place.height() - label.height();
    const bool isSlim = 2 * label.width() <= kSideShare * place.width();
    if (!isSlim && below >= line) {
        return {label, above};
    }
    return isSlim || tag.size() == 1 ? Corner{label, beside} : Corner{};
}

QStringList fittingLines(const QStringList& lines, double height, double linePixels)
{
    if (height < kLeastOfLine * linePixels) {
        return {};
    }
    return lines.mid(0, std::max(1, static_cast<int>(std::floor(height / linePixels))));
}

/// Device pixels that the frame of an exam is thick; low boxes keep some of their colour.
int examFrame(const DrawingTarget& target, const QRect& place)
{
    const int thick = static_cast<int>(std::lround(kExamLines * thinLine(target)));
    return std::clamp(std::min(place.width(), place.height()) / kExamShare, 1, thick);
}

void drawExamFrame(QPainter& surface, const QRect& place, int thick)
{
    const QRect inside = place.adjusted(thick, thick, -thick, -thick);
    for (const QRect& side :
         {QRect(place.topLeft(), QPoint(place.right(), inside.top() - 1)),
          QRect(QPoint(place.left(), inside.bottom() + 1), place.bottomRight()),
          QRect(place.topLeft(), QPoint(inside.left() - 1, place.bottom())),
          QRect(QPoint(inside.right() + 1, place.top()), place.bottomRight())}) {
        surface.fillRect(side, kExamFrame);
    }
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
        drawExamFrame(surface, place, examFrame(target, place));
    }
}

/// Whether the area is as high as so many lines, the white above the first and below the last
/// aside.
bool holdsLines(int lines, const QRectF& area, const TextRuler& ruler, double scale)
{
    return (lines - 1 + kLeastOfLine) * ruler.height() <= (area.height() + 1) * scale;
}

/// Whether the lines, broken between words, fit the area in that size.
bool fits(const QStringList& lines, const QRectF& area, const TextRuler& ruler, double scale)
{
    const MeasuredWords::Extent set = MeasuredWords(ruler, lines).extent(area.width() * scale);
    return set.width <= area.width() * scale && holdsLines(set.lines, area, ruler, scale);
}

/// The short text with the subject below it where neither need shrink; else what of the short text
/// is worth writing in the smallest size.
QString tellingText(const answers::WeekBox& box, const QRectF& area, const TextRuler& ruler,
                    int pixels)
{
    const QStringList both{box.shortText, box.lines.value(1)};
    if (!both.contains(QString()) && fits(both, area, ruler, 1)) {
        return both.join(u'\n');
    }
    const double scale = static_cast<double>(ruler.font().pixelSize()) / pixels;
    const QString first = box.shortText.section(QStringLiteral(" +"), 0, 0);
    for (const QString& each : {box.shortText, first}) {
        if (fits({each}, area, ruler, scale)) {
            return each;
        }
    }
    const QString cut = ruler.elided(first, area.width() * scale);
    return cut.size() > kTellingCharacters && holdsLines(1, area, ruler, scale) ? cut : QString();
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
    const double line = text.height() * leastPixels / text.ruler().font().pixelSize();
    const auto [label, reserved] = cornerOf(tag, place, text, line);
    BoxStyle style = styleOf(box, fill, text);
    style.reserved = reserved;
    const double height = place.height() - reserved.top();
    surface.save();
    drawKind(surface, target, box, style, place, fittingLines(lines, height, line));
    if (!label.isEmpty()) {
        surface.fillRect(label, kHeaderInk);
        surface.setPen(kWeekGround);
        text.draw(surface, label, tag, Qt::AlignHCenter);
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
             QStringList(tellingText(box, area, text.ruler(), leastPixels)));
    surface.restore();
}

void drawNothingThere(QPainter& surface, const DrawingTarget& target, const QRectF& area,
                      int pixels, const QString& sentence)
{
    const Lettering large(target, 2 * pixels);
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
