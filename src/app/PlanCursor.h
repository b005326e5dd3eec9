#pragma once

#include "app/PlanTable.h"

#include <QString>
#include <optional>

namespace app
{

/// The cell of the plan that the keyboard is on. It keeps the room and the slot and no cell, so
/// that it stands where it stood when the plan has been drawn anew; what it is asked it looks up in
/// the table of the moment. Moving up and down it keeps to its slot, also through longer séances.
class PlanCursor
{
public:
    enum class Step {
        Left,
        Right,
        Up,
        Down,
        ScreenUp, ///< as many rows as are in sight
        ScreenDown,
        RowBegin, ///< the room's name
        RowEnd,   ///< the row's last slot
        First,    ///< the page's first cell
        Last,     ///< the page's last one
    };

    [[nodiscard]] bool isOn() const { return m_isOn; }
    /// The cell that it stands on; nothing while it is put away, and where the table lacks its room
    /// or its slot.
    [[nodiscard]] std::optional<PlanTable::Cell> cell(const PlanTable& table) const;

    /// Puts it on a cell of the table.
    void put(const PlanTable& table, const PlanTable::Cell& cell);
    /// Puts it where it was last; false, with nothing done, where the table has no such cell.
    bool putBack(const PlanTable& table);
    /// Remembers a cell of the table for `putBack`; whether it is on stays as it is.
    void remember(const PlanTable& table, const PlanTable::Cell& cell);
    void putAway() { m_isOn = false; }
    /// Puts it away where the table, that of a plan drawn to its end, has not got its cell any
    /// more.
    void settle(const PlanTable& table);

    /// Moves it as far as there are cells; `rowsInSight` (1 upward) is what a screen is. Nothing
    /// while it is put away.
    void move(const PlanTable& table, Step step, int rowsInSight);

private:
    [[nodiscard]] std::optional<PlanTable::Cell> find(const PlanTable& table) const;
    void moveToRow(const PlanTable& table, int row);
    void moveToColumn(const PlanTable& table, int row, int column);

    bool m_isOn = false;
    QString m_room; ///< of the last place
    int m_row = 0;  ///< the row that it had, in case two have its name
    int m_slot = 0; ///< counting from 1; 0 for the room's name
};

} // namespace app
