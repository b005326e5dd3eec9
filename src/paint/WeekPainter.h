#pragma once

#include "answers/WeekGrid.h"
#include "form/Colour.h"
#include "paint/DrawingTarget.h"
#include "paint/Lettering.h"

#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <cstddef>
#include <optional>
#include <vector>

namespace paint
{

/// Draws the week of somebody or something, days across and hours down, and knows where each box
/// lies. One drawing for screen, pictures and paper: what differs tells the target.
///
/// All rectangles are in the painter's pixels. On the screen texts grow with the area; on paper
/// they have the target's size. Values are kept by reference and must outlive the painter, which
/// is made anew for each size.
class WeekPainter
{
public:
    /// `roomColors` as AnswerDocument has them, by the room's id. Of the target the kind counts
    /// (TargetIsPrinter), PixelsPerPoint and FontSize, not its twips.
    WeekPainter(const answers::WeekGrid& grid, const std::vector<form::Colour>& roomColors,
                const DrawingTarget& target, const QRectF& area);

    /// Everything: titles of the days, hours, grid, boxes, what has no known time; "Rien cette
    /// semaine" where there is nothing. The area's ground is white.
    void paint(QPainter& surface) const;

    /// Where the box lies, in whole pixels and within the grid. `index`: of WeekGrid::boxes.
    [[nodiscard]] QRectF boxRectangle(std::size_t index) const;
    /// The box under a point; nothing where there is none.
    [[nodiscard]] std::optional<std::size_t> boxAt(QPointF point) const;
    /// Title and column of a day, 0 to 5.
    [[nodiscard]] QRectF dayRectangle(int day) const;
    /// The day under a point, titles included; nothing beside the days.
    [[nodiscard]] std::optional<int> dayAt(QPointF point) const;
    /// The line beneath the grid that tells what has no known time; empty where there is none.
    [[nodiscard]] QRectF unplacedRectangle() const { return m_notes; }

private:
    void paintGrid(QPainter& surface) const;
    void paintTitles(QPainter& surface) const;
    void paintHours(QPainter& surface) const;
    void paintBoxes(QPainter& surface) const;
    void paintNotes(QPainter& surface) const;
    [[nodiscard]] double yOf(timetable::MinuteOfDay time) const;
    [[nodiscard]] double xOf(int day) const;
    [[nodiscard]] QRect placeOf(const answers::WeekBox& box) const;

    const answers::WeekGrid& m_grid;
    const std::vector<form::Colour>& m_roomColors;
    DrawingTarget m_target;
    QRectF m_area;
    QRectF m_body;  ///< the columns of the days, below their titles
    QRectF m_notes; ///< see unplacedRectangle
    int m_textSize; ///< pixels that texts start from
    Lettering m_text;
    Lettering m_title;
    std::vector<QRect> m_places; ///< of the boxes
};

} // namespace paint
