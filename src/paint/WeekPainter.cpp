#include "paint/WeekPainter.h"

#include "answers/Words.h"
#include "paint/BoxText.h"
#include "paint/RoomColor.h"
#include "paint/UnknownMark.h"
#include "paint/WeekBoxDrawing.h"
#include "paint/WeekInks.h"
#include "runtime/Numbers.h"

#include <algorithm>
#include <set>

namespace paint
{
namespace
{

using answers::kShownDays;
using answers::WeekBox;
using answers::WeekDay;
using runtime::nearestInteger;
using timetable::MinuteOfDay;
using timetable::TimeSpan;

// The screen's area for which a text of that size is made; others are in proportion.
constexpr double kUsualWidth = 1340;
constexpr double kUsualHeight = 640;
constexpr double kUsualText = 13;
constexpr int kLeastText = 9;
constexpr int kMostText = 48;
// Points that a line in a box is set in at least; less important ones are left out before.
constexpr double kLeastPaperText = 5;
// Heights as multiples of the text's size.
constexpr double kTitleHeight = 1.9;
constexpr double kNoteHeight = 1.5;
// Lines about what has no known time; the last one tells how many more there are.
constexpr std::size_t kNotes = 3;

int textSizeOf(const DrawingTarget& target, const QRectF& area)
{
    if (target.TargetIsPrinter) {
        return std::max(1, nearestInteger(target.FontSize * target.PixelsPerPoint));
    }
    const double share = std::min(area.width() / kUsualWidth, area.height() / kUsualHeight);
    return std::clamp(nearestInteger(kUsualText * share), kLeastText, kMostText);
}

/// What the hours beside the days are: where slots begin or end; every hour where there are none.
std::set<MinuteOfDay> hoursOf(const answers::WeekGrid& grid)
{
    constexpr int hour = 60;
    std::set<MinuteOfDay> hours;
    for (const WeekDay& day : grid.days) {
        for (const TimeSpan& slot : day.slotTimes) {
            hours.insert(slot.start);
            hours.insert(slot.end());
        }
    }
    if (hours.empty()) {
        const int first = (grid.axis.start.value + hour - 1) / hour * hour;
        for (int time = first; time <= grid.axis.end().value; time += hour) {
            hours.insert({time});
        }
    }
    return hours;
}

} // namespace

WeekPainter::WeekPainter(const answers::WeekGrid& grid, const std::vector<form::Colour>& roomColors,
                         const DrawingTarget& target, const QRectF& area)
    : m_grid(grid), m_roomColors(roomColors), m_target(target), m_area(area),
      m_textSize(textSizeOf(target, area)), m_text(target, m_textSize),
      m_title(target, m_textSize, true)
{
    const double size = m_textSize;
    const double hours = m_text.width(QStringLiteral("00h00")) + size;
    const double notes =
        kNoteHeight * size * static_cast<double>(std::min(kNotes, grid.unplaced.size()));
    m_notes = QRectF(area.left(), area.bottom() - notes, area.width(), notes);
    m_body = area.adjusted(hours, kTitleHeight * size, -thinLine(target),
                           -notes - size * kNoteHeight / 2);
    m_places.reserve(grid.boxes.size());
    for (const WeekBox& box : grid.boxes) {
        m_places.push_back(placeOf(box));
    }
}

double WeekPainter::xOf(int day) const
{
    return m_body.left() + m_body.width() * day / static_cast<double>(kShownDays);
}

double WeekPainter::yOf(MinuteOfDay time) const
{
    const double share = static_cast<double>((time - m_grid.axis.start).value) /
                         std::max(1, m_grid.axis.length.value);
    return m_body.top() + m_body.height() * std::clamp(share, 0.0, 1.0);
}

QRect WeekPainter::placeOf(const WeekBox& box) const
{
    const double gap = 2 * thinLine(m_target);
    const double left = xOf(box.day) + gap;
    const double width = (xOf(box.day + 1) - gap - left) / box.lanes;
    const int from = nearestInteger(left + width * box.lane);
    const int to = nearestInteger(left + width * (box.lane + 1));
    const int top = nearestInteger(yOf(box.time.start));
    const int bottom = nearestInteger(yOf(box.time.end()));
    // What is short stays visible, and at the end of the day within it.
    const int height = std::max(nearestInteger(2 * gap), bottom - top);
    const int last = nearestInteger(m_body.bottom()) - height;
    return {from, std::min(top, last), std::max(1, to - from), height};
}

void WeekPainter::paint(QPainter& surface) const
{
    surface.save();
    surface.setRenderHint(QPainter::Antialiasing, false);
    surface.fillRect(m_area, kWeekGround);
    paintGrid(surface);
    paintTitles(surface);
    paintHours(surface);
    paintBoxes(surface);
    paintNotes(surface);
    if (m_grid.isEmpty()) {
        drawNothingThere(surface, m_target, m_body, m_textSize);
    }
    surface.restore();
}

void WeekPainter::paintGrid(QPainter& surface) const
{
    const double line = thinLine(m_target);
    surface.fillRect(m_body, kPauseGround);
    for (std::size_t day = 0; day < kShownDays; ++day) {
        const double left = xOf(static_cast<int>(day));
        const double width = xOf(static_cast<int>(day) + 1) - left;
        for (const TimeSpan& slot : m_grid.days.at(day).slotTimes) {
            const double top = yOf(slot.start);
            surface.fillRect(QRectF(left, top, width, yOf(slot.end()) - top), kWeekGround);
        }
        for (const TimeSpan& slot : m_grid.days.at(day).slotTimes) {
            surface.fillRect(QRectF(left, yOf(slot.start), width, line), kSlotLine);
            surface.fillRect(QRectF(left, yOf(slot.end()), width, line), kSlotLine);
        }
    }
    for (std::size_t day = 0; day <= kShownDays; ++day) {
        surface.fillRect(
            QRectF(xOf(static_cast<int>(day)), m_area.top(), line, m_body.bottom() - m_area.top()),
            kDayLine);
    }
    surface.fillRect(QRectF(m_body.left(), m_body.bottom(), m_body.width() + line, line), kDayLine);
}

void WeekPainter::paintTitles(QPainter& surface) const
{
    const double line = thinLine(m_target);
    for (std::size_t day = 0; day < kShownDays; ++day) {
        const QRectF place = dayRectangle(static_cast<int>(day));
        const QRectF title(place.left() + line, place.top(), place.width() - line,
                           m_body.top() - place.top());
        surface.fillRect(title, kTitleGround);
        surface.setPen(kHeaderInk);
        m_title.draw(surface, title, m_grid.days.at(day).title, Qt::AlignHCenter);
    }
    surface.fillRect(QRectF(m_body.left(), m_body.top(), m_body.width(), line), kDayLine);
}

void WeekPainter::paintHours(QPainter& surface) const
{
    const double height = m_text.height();
    const double gap = height / 4;
    double free = m_area.top();
    surface.setPen(kHeaderInk);
    for (const MinuteOfDay hour : hoursOf(m_grid)) {
        if (hour > m_grid.axis.end()) {
            break;
        }
        const double top = yOf(hour) - height / 2;
        if (top < free) {
            continue; // it would run into the one above
        }
        m_text.draw(surface,
                    QRectF(m_area.left(), top, m_body.left() - m_area.left() - gap, height),
                    answers::clockWords(hour), Qt::AlignRight);
        free = top + height;
    }
}

void WeekPainter::paintBoxes(QPainter& surface) const
{
    const int least = m_target.TargetIsPrinter
                          ? nearestInteger(kLeastPaperText * m_target.PixelsPerPoint)
                          : kSmallestText;
    for (std::size_t index = 0; index < m_grid.boxes.size(); ++index) {
        const WeekBox& box = m_grid.boxes[index];
        drawWeekBox(surface, m_target, box, m_places[index], roomColor(m_roomColors, box.room),
                    m_text, least);
    }
}

void WeekPainter::paintNotes(QPainter& surface) const
{
    const std::size_t count = m_grid.unplaced.size();
    const std::size_t lines = std::min(count, kNotes);
    for (std::size_t line = 0; line < lines; ++line) {
        const double height = m_notes.height() / static_cast<double>(lines);
        const QRectF place(m_notes.left(), m_notes.top() + height * static_cast<double>(line),
                           m_notes.width(), height);
        const QRectF mark(place.left(), place.top(), m_body.left() - place.left(), height);
        const bool isLast = line + 1 == lines && count > lines;
        const QString words =
            isLast ? QStringLiteral("et %1 autres à une heure inconnue").arg(count - lines + 1)
                   : m_grid.unplaced[line].words;
        drawUnknownMark(surface, m_target,
                        mark.adjusted(height / 4, height / 8, -height / 4, -height / 8).toRect());
        surface.setPen(kHeaderInk);
        m_text.draw(surface, place.adjusted(mark.width(), 0, 0, 0), words, Qt::AlignLeft);
    }
}

QRectF WeekPainter::boxRectangle(std::size_t index) const
{
    return m_places.at(index);
}

std::optional<std::size_t> WeekPainter::boxAt(QPointF point) const
{
    for (std::size_t index = 0; index < m_places.size(); ++index) {
        if (holds(m_places[index], point)) {
            return index;
        }
    }
    return std::nullopt;
}

QRectF WeekPainter::dayRectangle(int day) const
{
    return {xOf(day), m_area.top(), xOf(day + 1) - xOf(day), m_body.bottom() - m_area.top()};
}

std::optional<int> WeekPainter::dayAt(QPointF point) const
{
    for (int day = 0; day < static_cast<int>(kShownDays); ++day) {
        if (holds(dayRectangle(day), point)) {
            return day;
        }
    }
    return std::nullopt;
}

} // namespace paint
