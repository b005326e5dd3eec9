#pragma once

#include "db/MatchMasks.h"
#include "lookup/PageCells.h"
#include "lookup/RoomQuestion.h"

#include <QString>
#include <QStringList>
#include <vector>

namespace lookup
{

/// Lets one query answer the questions about all cells of a page: masks in front of a row's own
/// columns tell its rooms and its slot (see db::MatchMasks).
class CellMasks
{
public:
    /// The dialect holds rooms and keys (db::SqlDialect::holds), each of which comes once. A room
    /// without a name comes last, if at all.
    CellMasks(RoomQuestion::Table table, QStringList rooms, QStringList keys,
              const db::SqlDialect& dialect);

    /// The mask columns, separated by commas.
    [[nodiscard]] QString selectList() const;
    /// The condition on rooms and slots.
    [[nodiscard]] QString condition() const;
    /// The rows that such a query has found, by the cells that they belong to; none for the others.
    /// Error: any that reading a number raises.
    [[nodiscard]] PageCells sorted(const db::Recordset& found) const;

private:
    [[nodiscard]] std::vector<PageCells::Cell> cellsOf(const db::Row& row) const;

    QStringList m_rooms;
    db::MatchMasks m_keyMasks;
    std::vector<db::MatchMasks> m_roomMasks; ///< one for each column that can name a room
};

} // namespace lookup
