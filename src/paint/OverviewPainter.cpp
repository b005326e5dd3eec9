#include "paint/OverviewPainter.h"

#include "answers/Words.h"
#include "paint/BoxText.h"
#include "paint/CellBox.h"
#include "paint/RoomColor.h"
#include "paint/UnknownMark.h"
#include "paint/WeekBoxDrawing.h"
#include "paint/WeekInks.h"
#include "runtime/Numbers.h"

#include <algorithm>
#include <cmath>

namespace paint
{
namespace
{

using answers::kShownDays;
using answers::RoomWeek;
using answers::WeekBox;
using answers::WeekDay;
using runtime::nearestInteger;
using timetable::MinuteOfDay;
using timetable::TimeSpan;

// Points, of paper and of a screen at 96 dots per inch.
constexpr double kTitlePoints = 14; ///< a day's title
constexpr double kHoursPoints = 11; ///< the hours below it
constexpr double kLeastRow = 15;    ///< a row in which each half takes a line
constexpr double kMostRow = 36;
constexpr double kLargestText = 9;   ///< what texts start from
constexpr double kSmallestStart = 7; ///< likewise, in the lowest rows
constexpr double kTextOfRow = 0.6;
// Points that texts in boxes on paper start from, and those of the smallest.
constexpr int kPaperText = 7;
constexpr double kLeastPaperText = 4;
// The share of the width that the names take at most, and at least.
constexpr double kMostForNames = 0.14;
constexpr double kLeastForNames = 0.06;

int pixelsOf(const DrawingTarget& target, double points)
{
    return std::max(1, nearestInteger(points * target.PixelsPerPoint));
}

/// Minutes of all days together.
int minutesOf(const answers::WeekDays& days)
{
    int minutes = 0;
    for (const WeekDay& day : days) {
        minutes += std::max(1, day.axis.length.value);
    }
    return minutes;
}

} // namespace

double OverviewPainter::headingHeight(const DrawingTarget& target)
{
    return pixelsOf(target, kTitlePoints) + pixelsOf(target, kHoursPoints);
}

double OverviewPainter::leastHeight(std::size_t rows, const DrawingTarget& target)
{
    return headingHeight(target) + static_cast<double>(rows) * pixelsOf(target, kLeastRow) + 1;
}

OverviewPainter::OverviewPainter(const answers::RoomWeeks& weeks,
                                 const std::vector<form::Colour>& roomColors,
                                 const DrawingTarget& target, const QRectF& area)
    : m_weeks(weeks), m_roomColors(roomColors), m_target(target), m_area(area),
      m_top(area.top() + headingHeight(target)),
      m_rowHeight(std::clamp((area.bottom() - thinLine(target) - m_top) /
                                 static_cast<double>(std::max<std::size_t>(1, weeks.rows.size())),
                             1.0, static_cast<double>(pixelsOf(target, kMostRow)))),
      m_text(target, std::clamp(nearestInteger(kTextOfRow * m_rowHeight),
                                pixelsOf(target, kSmallestStart), pixelsOf(target, kLargestText))),
      m_title(target, pixelsOf(target, kLargestText), true),
      m_hours(target, pixelsOf(target, kSmallestStart))
{
    m_target.FontSize = std::min(m_target.FontSize, kPaperText);
    double names = kLeastForNames * area.width();
    for (const RoomWeek& row : weeks.rows) {
        names = std::max(names, m_text.width(row.name + QStringLiteral("  ") + placesOf(row)) +
                                    m_text.height());
    }
    m_left = area.left() + std::min(names, kMostForNames * area.width());
    const double width = area.right() - thinLine(target) - m_left;
    const double perMinute = width / minutesOf(weeks.days);
    m_dayEdges.front() = m_left;
    for (std::size_t day = 0; day < kShownDays; ++day) {
        m_dayEdges.at(day + 1) =
            m_dayEdges.at(day) + perMinute * std::max(1, weeks.days.at(day).axis.length.value);
    }
}

QString OverviewPainter::placesOf(const RoomWeek& row)
{
    return row.places > 0 ? QString::number(row.places) : QString();
}

double OverviewPainter::xOf(int day, MinuteOfDay time) const
{
    const auto index = static_cast<std::size_t>(day);
    const TimeSpan& axis = m_weeks.days.at(index).axis;
    const double share =
        static_cast<double>((time - axis.start).value) / std::max(1, axis.length.value);
    const double left = m_dayEdges.at(index);
    return left + (m_dayEdges.at(index + 1) - left) * std::clamp(share, 0.0, 1.0);
}

QRect OverviewPainter::placeOf(const WeekBox& box, std::size_t row) const
{
    const QRectF all = rowRectangle(row);
    const double line = thinLine(m_target);
    const double height = (all.height() - line) / box.lanes;
    const double from = all.top() + line + height * box.lane;
    const int left = nearestInteger(xOf(box.day, box.time.start) + line);
    const int right = nearestInteger(xOf(box.day, box.time.end()));
    const int top = nearestInteger(from);
    const int bottom = nearestInteger(from + height);
    // What is short stays visible, and at the end of the day within it.
    const int least = nearestInteger(2 * line);
    const int width = std::max(least, right - left);
    const double end = m_dayEdges.at(static_cast<std::size_t>(box.day) + 1);
    return {std::min(left, nearestInteger(end) - width), top, width, std::max(least, bottom - top)};
}

void OverviewPainter::paint(QPainter& surface) const
{
    surface.save();
    surface.fillRect(m_area, kWeekGround);
    paintRows(surface, m_area);
    paintHeading(surface);
    if (m_weeks.isEmpty()) {
        drawNothingThere(surface, m_target,
                         QRectF(m_left, m_top, m_dayEdges.back() - m_left, m_area.bottom() - m_top),
                         pixelsOf(m_target, kLargestText),
                         m_weeks.isPart ? QStringLiteral("Rien cette semaine dans ces salles")
                                        : QStringLiteral("Rien cette semaine"));
    }
    surface.restore();
}

void OverviewPainter::paintHeading(QPainter& surface) const
{
    const double line = thinLine(m_target);
    const double title = pixelsOf(m_target, kTitlePoints);
    surface.save();
    surface.setRenderHint(QPainter::Antialiasing, false);
    surface.fillRect(QRectF(m_area.left(), m_area.top(), m_area.width(), m_top - m_area.top()),
                     kWeekGround);
    surface.fillRect(QRectF(m_left, m_area.top(), m_dayEdges.back() - m_left, m_top - m_area.top()),
                     kTitleGround);
    for (std::size_t day = 0; day < kShownDays; ++day) {
        const double left = m_dayEdges.at(day);
        const double width = m_dayEdges.at(day + 1) - left;
        surface.setPen(kHeaderInk);
        m_title.draw(surface, QRectF(left, m_area.top(), width, title), m_weeks.days.at(day).title,
                     Qt::AlignHCenter);
        surface.fillRect(QRectF(left, m_area.top(), line, m_top - m_area.top()), kDayLine);
        paintHours(surface, static_cast<int>(day));
    }
    surface.fillRect(QRectF(m_dayEdges.back(), m_area.top(), line, m_top - m_area.top()), kDayLine);
    surface.fillRect(QRectF(m_area.left(), m_top, m_dayEdges.back() - m_area.left(), line),
                     kDayLine);
    surface.restore();
}

void OverviewPainter::paintHours(QPainter& surface, int day) const
{
    const WeekDay& shown = m_weeks.days.at(static_cast<std::size_t>(day));
    const double top = m_area.top() + pixelsOf(m_target, kTitlePoints);
    const double gap = m_hours.height() / 4;
    double free = m_dayEdges.at(static_cast<std::size_t>(day));
    for (const TimeSpan& slot : shown.slotTimes) {
        const QString words = answers::clockWords(slot.start);
        const double left = xOf(day, slot.start) + gap / 2;
        const double width = m_hours.width(words) + 1;
        if (left >= free && left + width <= m_dayEdges.at(static_cast<std::size_t>(day) + 1)) {
            m_hours.draw(surface, QRectF(left, top, width, m_top - top), words, Qt::AlignLeft);
            free = left + width + gap;
        }
    }
}

void OverviewPainter::paintRows(QPainter& surface, const QRectF& exposed) const
{
    surface.save();
    surface.setRenderHint(QPainter::Antialiasing, false);
    for (std::size_t row = 0; row < m_weeks.rows.size(); ++row) {
        if (rowRectangle(row).adjusted(0, 0, 0, thinLine(m_target)).intersects(exposed)) {
            paintRow(surface, row);
        }
    }
    surface.restore();
}

void OverviewPainter::paintRow(QPainter& surface, std::size_t row) const
{
    const RoomWeek& week = m_weeks.rows.at(row);
    const form::Colour color = roomColor(m_roomColors, week.room);
    paintGround(surface, rowRectangle(row));
    paintName(surface, week, nameRectangle(row), color);
    for (std::size_t day = 0; day < kShownDays; ++day) {
        if (!week.unknown.at(day).isEmpty()) {
            const double left = m_dayEdges.at(day);
            const QRectF all = rowRectangle(row);
            drawUnknownMark(surface, m_target,
                            QRectF(left, all.top(), m_dayEdges.at(day + 1) - left, all.height())
                                .toAlignedRect());
        }
    }
    const int least =
        m_target.TargetIsPrinter ? pixelsOf(m_target, kLeastPaperText) : kSmallestText;
    for (const WeekBox& box : week.boxes) {
        drawDenseWeekBox(surface, m_target, box, placeOf(box, row), color, m_text, least);
    }
}

void OverviewPainter::paintGround(QPainter& surface, const QRectF& row) const
{
    const double line = thinLine(m_target);
    surface.fillRect(QRectF(m_left, row.top(), m_dayEdges.back() - m_left, row.height()),
                     kPauseGround);
    for (std::size_t day = 0; day < kShownDays; ++day) {
        const int which = static_cast<int>(day);
        for (const TimeSpan& slot : m_weeks.days.at(day).slotTimes) {
            const double left = xOf(which, slot.start);
            surface.fillRect(QRectF(left, row.top(), xOf(which, slot.end()) - left, row.height()),
                             kWeekGround);
        }
        for (const TimeSpan& slot : m_weeks.days.at(day).slotTimes) {
            surface.fillRect(QRectF(xOf(which, slot.start), row.top(), line, row.height()),
                             kSlotLine);
        }
    }
    for (const double edge : m_dayEdges) {
        surface.fillRect(QRectF(edge, row.top(), line, row.height() + line), kDayLine);
    }
    surface.fillRect(QRectF(m_area.left(), row.top(), m_dayEdges.back() - m_area.left(), line),
                     kSlotLine);
    surface.fillRect(QRectF(m_area.left(), row.bottom(), m_dayEdges.back() - m_area.left(), line),
                     kSlotLine);
}

void OverviewPainter::paintName(QPainter& surface, const RoomWeek& week, const QRectF& place,
                                form::Colour color) const
{
    const double line = thinLine(m_target);
    const double gap = m_text.height() / 4;
    const QRectF inner = place.adjusted(gap, 0, -gap, 0);
    const QString places = placesOf(week);
    const double taken = places.isEmpty() ? 0 : m_text.width(places) + gap;
    surface.fillRect(place.adjusted(0, line, 0, 0), toColor(color));
    surface.setPen(toColor(readableOn(color)));
    m_text.draw(surface, inner.adjusted(0, 0, -taken, 0), week.name, Qt::AlignLeft);
    m_text.draw(surface, QRectF(inner.right() - taken, inner.top(), taken, inner.height()), places,
                Qt::AlignRight);
}

QRectF OverviewPainter::boxRectangle(const OverviewBox& which) const
{
    return placeOf(m_weeks.rows.at(which.row).boxes.at(which.box), which.row);
}

std::optional<OverviewBox> OverviewPainter::boxAt(QPointF point) const
{
    if (const std::optional<std::size_t> row = rowAt(point)) {
        const std::vector<WeekBox>& boxes = m_weeks.rows[*row].boxes;
        for (std::size_t box = 0; box < boxes.size(); ++box) {
            if (holds(placeOf(boxes[box], *row), point)) {
                return OverviewBox{*row, box};
            }
        }
    }
    return std::nullopt;
}

QRectF OverviewPainter::rowRectangle(std::size_t row) const
{
    // Whole pixels, so that lines and boxes of all rows are alike.
    const double top = m_top + std::round(m_rowHeight * static_cast<double>(row));
    const double bottom = m_top + std::round(m_rowHeight * static_cast<double>(row + 1));
    return {m_area.left(), top, m_dayEdges.back() - m_area.left(), bottom - top};
}

QRectF OverviewPainter::nameRectangle(std::size_t row) const
{
    const QRectF all = rowRectangle(row);
    return {all.left(), all.top(), m_left - all.left(), all.height()};
}

std::optional<std::size_t> OverviewPainter::rowAt(QPointF point) const
{
    for (std::size_t row = 0; row < m_weeks.rows.size(); ++row) {
        if (holds(rowRectangle(row), point)) {
            return row;
        }
    }
    return std::nullopt;
}

QRectF OverviewPainter::dayRectangle(int day) const
{
    const auto index = static_cast<std::size_t>(day);
    const double left = m_dayEdges.at(index);
    const double bottom =
        m_weeks.rows.empty() ? m_top : rowRectangle(m_weeks.rows.size() - 1).bottom();
    return {left, m_area.top(), m_dayEdges.at(index + 1) - left, bottom - m_area.top()};
}

std::optional<int> OverviewPainter::dayAt(QPointF point) const
{
    for (int day = 0; day < static_cast<int>(kShownDays); ++day) {
        if (holds(dayRectangle(day), point)) {
            return day;
        }
    }
    return std::nullopt;
}

} // namespace paint
