#pragma once

#include "db/Database.h"
#include "lookup/RoomQuestion.h"

#include <QStringList>
#include <cstddef>
#include <map>
#include <optional>
#include <vector>

namespace lookup
{

/// The timetable rows of a page by room and slot key, as the plain statement would find them for
/// each.
class PageCells
{
public:
    /// Positions of a room and of a key in their lists, from 0.
    struct Cell {
        qsizetype room = 0;
        qsizetype key = 0;
    };

    PageCells() = default;                          ///< No cells
    PageCells(QStringList rooms, QStringList keys); ///< Nothing is known of any cell

    [[nodiscard]] const QString& room(Cell cell) const { return m_rooms[cell.room]; }
    [[nodiscard]] const QString& key(Cell cell) const { return m_keys[cell.key]; }

    void set(Cell cell, db::Recordset rows) { m_rowsOf[position(cell)] = std::move(rows); }
    void forget(Cell cell) { m_rowsOf[position(cell)].reset(); }
    /// Nothing for a cell that is to be asked for.
    [[nodiscard]] std::optional<db::Recordset> find(const QString& room, const QString& key) const;
    /// The cells that several rows answer, room by room.
    [[nodiscard]] std::vector<Cell> crowded() const;
    /// Calls `take` with the rows of each cell that has any, room by room.
    template <typename Take>
    void forTaken(Take take) const
    {
        for (const std::optional<db::Recordset>& rows : m_rowsOf) {
            if (rows && !rows->isEmpty()) {
                take(*rows);
            }
        }
    }

private:
    [[nodiscard]] std::size_t position(Cell cell) const
    {
        return static_cast<std::size_t>(cell.room * m_keys.size() + cell.key);
    }

    QStringList m_rooms;
    QStringList m_keys;
    std::vector<std::optional<db::Recordset>> m_rowsOf; ///< the cells, room by room
};

/// Fetches the rows of a page from several tables: a statement for each, one about all of their
/// orders, and perhaps another for each. `pages` holds what all questions on a table share; rooms
/// and keys are plain literals. A table that cannot be asked is left out.
///
/// The database itself says which row answers which question. Where several rows answer one, their
/// order matters, and none is asked for. Unless the database's query plans say that the rows came
/// in each question's own order, these questions are put once more, each in the plain statement's
/// own words.
[[nodiscard]] std::map<RoomQuestion::Table, PageCells>
fetchPageCells(db::Database& database, const std::vector<RoomQuestion>& pages,
               const QStringList& rooms, const QStringList& keys);

} // namespace lookup
