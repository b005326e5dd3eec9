#pragma once

#include "answers/RoomWeeks.h"
#include "form/Colour.h"
#include "paint/DrawingTarget.h"
#include "paint/Lettering.h"

#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <array>
#include <cstddef>
#include <optional>
#include <vector>

namespace paint
{

/// A box of the overview: `box` among the boxes of row `row`.
struct OverviewBox {
    std::size_t row = 0;
    std::size_t box = 0;

    friend bool operator==(const OverviewBox&, const OverviewBox&) = default;
};

/// Draws the week of many rooms, a row each and six days side by side, and knows where everything
/// lies. One drawing for screen, pictures and paper: what differs tells the target.
///
/// All rectangles are in the painter's pixels. All rows get the same height, so that they fill the
/// area, up to what their texts need; a window that scrolls gives an area of `leastHeight`. Values
/// are kept by reference and must outlive the painter, which is made anew for each size.
class OverviewPainter
{
public:
    /// `roomColors` as AnswerDocument has them, by the room's id. Of the target the kind counts
    /// (TargetIsPrinter), PixelsPerPoint and FontSize, not its twips.
    OverviewPainter(const answers::RoomWeeks& weeks, const std::vector<form::Colour>& roomColors,
                    const DrawingTarget& target, const QRectF& area);

    /// Pixels that so many rows need, heading included, for their texts to be legible.
    [[nodiscard]] static double leastHeight(std::size_t rows, const DrawingTarget& target);
    /// Pixels of the heading: days and hours.
    [[nodiscard]] static double headingHeight(const DrawingTarget& target);

    /// Everything; "Rien cette semaine" in the middle where no room has anything, and that it is so
    /// in these rooms where others have.
    void paint(QPainter& surface) const;
    /// The days and their hours, at the area's top: a window that scrolls paints it last, moved to
    /// where its own top is.
    void paintHeading(QPainter& surface) const;
    /// The rows that meet `exposed`.
    void paintRows(QPainter& surface, const QRectF& exposed) const;

    /// Where the box lies, in whole pixels.
    [[nodiscard]] QRectF boxRectangle(const OverviewBox& which) const;
    [[nodiscard]] std::optional<OverviewBox> boxAt(QPointF point) const;
    /// The room's name and its six days.
    [[nodiscard]] QRectF rowRectangle(std::size_t row) const;
    /// Where its name stands.
    [[nodiscard]] QRectF nameRectangle(std::size_t row) const;
    /// The row under a point, its name included; nothing above the first and below the last.
    [[nodiscard]] std::optional<std::size_t> rowAt(QPointF point) const;
    /// A day's column, 0 to 5, its title included.
    [[nodiscard]] QRectF dayRectangle(int day) const;
    [[nodiscard]] std::optional<int> dayAt(QPointF point) const;

private:
    void paintRow(QPainter& surface, std::size_t row) const;
    void paintGround(QPainter& surface, const QRectF& row) const;
    void paintName(QPainter& surface, const answers::RoomWeek& week, const QRectF& place,
                   form::Colour color) const;
    void paintHours(QPainter& surface, int day) const;
    [[nodiscard]] static QString placesOf(const answers::RoomWeek& row);
    [[nodiscard]] double xOf(int day, timetable::MinuteOfDay time) const;
    [[nodiscard]] QRect placeOf(const answers::WeekBox& box, std::size_t row) const;

    const answers::RoomWeeks& m_weeks;
    const std::vector<form::Colour>& m_roomColors;
    DrawingTarget m_target;
    QRectF m_area;
    double m_top; ///< where the rows begin
    double m_rowHeight;
    Lettering m_text;
    Lettering m_title;
    Lettering m_hours;
    double m_left = 0; ///< where the days begin
    /// The left edge of each day, and the right one of the last.
    std::array<double, answers::kShownDays + 1> m_dayEdges{};
};

} // namespace paint
