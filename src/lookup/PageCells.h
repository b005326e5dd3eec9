#pragma once

#include "db/Database.h"
#include "lookup/RoomQuestion.h"
#include "lookup/WalkCheck.h"

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
    PageCells() = default; ///< Nothing is known
    PageCells(QStringList rooms, QStringList keys);

    [[nodiscard]] const QStringList& rooms() const { return m_rooms; }
    [[nodiscard]] const QStringList& keys() const { return m_keys; }

    /// Positions are those of room and key; both count from 0.
    [[nodiscard]] std::optional<db::Recordset>& at(std::size_t room, std::size_t key);
    /// Nothing for a cell that is to be asked for.
    [[nodiscard]] std::optional<db::Recordset> find(const QString& room, const QString& key) const;
    /// Calls `take` with the rows of each cell that has any, room by room.
    template <typename Take>
    void forTaken(Take take) const
    {
        for (const std::optional<db::Recordset>& rows : m_cells) {
            if (rows && !rows->isEmpty()) {
                take(*rows);
            }
        }
    }

private:
    [[nodiscard]] std::size_t indexOf(std::size_t room, std::size_t key) const;

    QStringList m_rooms;
    QStringList m_keys;
    std::vector<std::optional<db::Recordset>> m_cells;
};

/// Fetches the rows of a page from several tables: a statement for each, one about all of their
/// orders, and perhaps another for each. `pages` holds what all questions on a table share; rooms
/// and keys are plain literals. A table that cannot be asked is left out.
///
/// The database itself says which row answers which question. Where several rows answer one, their
/// order matters, and none is asked for. The database is then asked how it would walk through the
/// table for these questions: when that is how it came by the page's rows, they are in order
/// already; if not, the questions are put once more, each in the plain statement's own words.
[[nodiscard]] std::map<RoomQuestion::Table, PageCells>
fetchPageCells(db::Database& database, WalkCheck& walk, const std::vector<RoomQuestion>& pages,
               const QStringList& rooms, const QStringList& keys);

} // namespace lookup
