#include "lookup/CellMasks.h"

#include "timetable/MeetingColumns.h"

#include <algorithm>
#include <utility>

namespace lookup
{

CellMasks::CellMasks(RoomQuestion::Table table, QStringList rooms, QStringList keys,
                     const db::SqlDialect& dialect)
    : m_rooms(std::move(rooms)), m_keyMasks(timetable::column::kSeance, std::move(keys), dialect)
{
    for (const QString& column : RoomQuestion::roomColumns(table)) {
        QStringList names = m_rooms;
        if (column != timetable::column::kSalle) {
            names.removeAll(QString()); // without a name only `Salle` is asked about
        }
        m_roomMasks.emplace_back(column, names, dialect);
    }
}

QString CellMasks::selectList() const
{
    QString lists = m_keyMasks.selectList(QStringLiteral("tempora_k"));
    for (std::size_t column = 0; column < m_roomMasks.size(); ++column) {
        if (m_roomMasks[column].columnCount() > 0) {
            lists += QStringLiteral(", ");
            lists += m_roomMasks[column].selectList(QStringLiteral("tempora_r%1_").arg(column));
        }
    }
    return lists;
}

QString CellMasks::condition() const
{
    QStringList rooms;
    for (const db::MatchMasks& column : m_roomMasks) {
        rooms << column.anyOf();
    }
    return u'(' + rooms.join(QStringLiteral(" or ")) + QStringLiteral(") and ") +
           m_keyMasks.anyOf();
}

PageCells CellMasks::sorted(const db::Recordset& found) const
{
    const QStringList& keys = m_keyMasks.texts();
    std::vector<std::vector<db::Row>> rowsOf(
        static_cast<std::size_t>(m_rooms.size() * keys.size())); // room by room
    for (const db::Row& row : found.rows()) {
        for (const PageCells::Cell cell : cellsOf(row)) {
            rowsOf[static_cast<std::size_t>(cell.room * keys.size() + cell.key)].push_back(row);
        }
    }
    PageCells cells(m_rooms, keys);
    auto rows = rowsOf.begin();
    for (qsizetype room = 0; room < m_rooms.size(); ++room) {
        for (qsizetype key = 0; key < keys.size(); ++key) {
            cells.set({room, key}, {found.columns(), std::move(*rows++)});
        }
    }
    return cells;
}

/// Each once, whatever the number of columns that name the room.
std::vector<PageCells::Cell> CellMasks::cellsOf(const db::Row& row) const
{
    std::vector<int> rooms;
    int first = m_keyMasks.columnCount();
    for (const db::MatchMasks& column : m_roomMasks) {
        for (const int room : column.matches(row, first)) {
            if (std::find(rooms.begin(), rooms.end(), room) == rooms.end()) {
                rooms.push_back(room);
            }
        }
        first += column.columnCount();
    }
    std::vector<PageCells::Cell> cells;
    for (const int key : m_keyMasks.matches(row, 0)) {
        for (const int room : rooms) {
            cells.push_back({room, key});
        }
    }
    return cells;
}

} // namespace lookup
