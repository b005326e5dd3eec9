#include "app/PlanCursor.h"

#include <algorithm>

namespace app
{

std::optional<PlanTable::Cell> PlanCursor::find(const PlanTable& table) const
{
    if (m_row < table.rowCount() && table.rowOf({m_row, 0, 1}).room == m_room) {
        return table.cellIn(m_row, m_slot);
    }
    const auto room = table.cellOf(m_room, 0);
    return room ? table.cellIn(room->row, m_slot) : std::nullopt;
}

std::optional<PlanTable::Cell> PlanCursor::cell(const PlanTable& table) const
{
    return m_isOn ? find(table) : std::nullopt;
}

void PlanCursor::put(const PlanTable& table, const PlanTable::Cell& cell)
{
    remember(table, cell);
    m_isOn = true;
}

bool PlanCursor::putBack(const PlanTable& table)
{
    m_isOn = m_isOn || find(table).has_value();
    return m_isOn;
}

void PlanCursor::remember(const PlanTable& table, const PlanTable::Cell& cell)
{
    m_room = table.rowOf(cell).room;
    m_row = cell.row;
    m_slot = table.slotOf(cell);
}

void PlanCursor::settle(const PlanTable& table)
{
    m_isOn = cell(table).has_value();
}

void PlanCursor::moveToRow(const PlanTable& table, int row)
{
    m_row = std::clamp(row, 0, table.rowCount() - 1);
    m_room = table.rowOf({m_row, 0, 1}).room;
}

void PlanCursor::moveToColumn(const PlanTable& table, int row, int column)
{
    if (const auto there = table.cellAt(row, column)) {
        remember(table, *there);
    }
}

void PlanCursor::move(const PlanTable& table, Step step, int rowsInSight)
{
    const auto here = cell(table);
    if (!here) {
        return;
    }
    const int lastRow = table.rowCount() - 1;
    const int lastColumn = table.columnCount() - 1;
    switch (step) {
    case Step::Left:
        return moveToColumn(table, here->row, here->column - 1);
    case Step::Right:
        return moveToColumn(table, here->row, here->column + here->span);
    case Step::Up:
        return moveToRow(table, here->row - 1);
    case Step::Down:
        return moveToRow(table, here->row + 1);
    case Step::ScreenUp:
        return moveToRow(table, here->row - std::max(rowsInSight, 1));
    case Step::ScreenDown:
        return moveToRow(table, here->row + std::max(rowsInSight, 1));
    case Step::RowBegin:
        return moveToColumn(table, here->row, 0);
    case Step::RowEnd:
        return moveToColumn(table, here->row, lastColumn);
    case Step::First:
        return moveToColumn(table, 0, 0);
    case Step::Last:
        return moveToColumn(table, lastRow, lastColumn);
    }
}

} // namespace app
