#pragma once

#include "paint/DrawingTarget.h"
#include "plan/PlanContent.h"
#include "plan/PlanState.h"

#include <QPointF>
#include <QRectF>
#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace app
{

/// The shown plan as a table, in words: a row per drawn room, a column for the rooms' names and one
/// per slot. It reads the values of the last refresh, loads nothing and lays nothing out. It is
/// made anew for each question: a refresh may come in between.
class PlanTable
{
public:
    /// A box, a slot without one, or, in column 0, the room.
    struct Cell {
        int row = 0;
        int column = 0;
        int span = 1; ///< columns covered: a long séance reaches into the next slots
    };

    /// `target` is the one that the plan was drawn with.
    PlanTable(const plan::PlanState& state, const plan::PlanContent& content,
              const paint::DrawingTarget& target);

    [[nodiscard]] int rowCount() const { return static_cast<int>(m_rows.size()); }
    [[nodiscard]] int columnCount() const { return static_cast<int>(m_slots.size()) + 1; }
    /// The cells of a row (0 upward), from left to right.
    [[nodiscard]] std::vector<Cell> cellsOf(int row) const;
    /// The cell that covers this place of the table; nothing outside of it.
    [[nodiscard]] std::optional<Cell> cellAt(int row, int column) const;
    /// The box or the slot under a point of the plan, in device pixels of the target, unscrolled.
    [[nodiscard]] std::optional<Cell> cellUnder(QPointF point) const;
    /// The room whose row is at this height, in the same pixels.
    [[nodiscard]] std::optional<Cell> roomAtHeight(double y) const;

    /// The cell that shows this slot of a room, or the room itself for slot 0 and for one that the
    /// table does not have; nothing where the room has no row.
    [[nodiscard]] std::optional<Cell> cellOf(const QString& room, int slot) const;
    /// The cell that shows this slot in a row, or its room for slot 0; nothing where the table has
    /// no such row or slot.
    [[nodiscard]] std::optional<Cell> cellIn(int row, int slot) const;
    [[nodiscard]] const plan::PlanRow& rowOf(const Cell& cell) const;
    /// The slot's number, counting from 1; 0 in the rooms' column.
    [[nodiscard]] int slotOf(const Cell& cell) const;
    /// Null for a room and for a slot without a box.
    [[nodiscard]] const plan::PlanBox* boxOf(const Cell& cell) const;

    /// What there is to see in the cell: for a room its name and places, else room, time, the box's
    /// text, counter and marks.
    [[nodiscard]] QString nameOf(const Cell& cell) const;
    /// Where the cell lies in the plan, in device pixels of the target, unscrolled. Empty for a
    /// slot that the day does not have.
    [[nodiscard]] QRectF placeOf(const Cell& cell) const;
    /// "Salle", else the time of the slot.
    [[nodiscard]] QString columnTitle(int column) const;
    /// The names of all cells, in order.
    [[nodiscard]] QStringList words() const;

    /// Which plan it is: day or date, period, and what restricts it.
    [[nodiscard]] QString title() const;
    /// What stands beside the table: the room before the first row, and the totals.
    [[nodiscard]] QString note() const;

private:
    [[nodiscard]] QString slotTitle(int slot) const;

    const plan::PlanState& m_state;
    const plan::PlanContent& m_content;
    paint::DrawingTarget m_target;
    std::vector<const plan::PlanRow*> m_rows;
    std::vector<int> m_slots; ///< slot numbers of the columns from 1 on
};

} // namespace app
