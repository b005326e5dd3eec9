#include "lookup/PageCells.h"

#include "db/DatabaseError.h"
#include "lookup/CellMasks.h"
#include "timetable/MeetingColumns.h"

#include <utility>

namespace lookup
{
namespace
{

/// The rooms, one without a name behind the others.
QStringList namelessLast(QStringList rooms)
{
    if (rooms.removeAll(QString()) > 0) {
        rooms << QString();
    }
    return rooms;
}

/// What stands between the columns put in front of a table's own and the conditions.
QString wholeRows(const QString& table)
{
    return table + QStringLiteral(".* from ") + table + QStringLiteral(" WHERE");
}

/// The cells of one table that several rows answer.
struct Crowded {
    RoomQuestion::Table table;
    std::vector<PageCells::Cell> cells;
    db::WideQuery query; ///< the page's; its parts are the questions about these cells
};

/// `condition`: of the query that has brought the page's rows.
Crowded crowdedOf(const PageCells& page, RoomQuestion question, const QString& condition,
                  const db::SqlDialect& dialect)
{
    Crowded crowded{question.table,
                    page.crowded(),
                    {question.tableName(), timetable::column::kSalle, condition, {}}};
    for (const PageCells::Cell cell : crowded.cells) {
        question.room = page.room(cell);
        question.seanceKey = page.key(cell);
        crowded.query.parts.push_back(question.narrowQuery(dialect));
    }
    return crowded;
}

/// Asks for these cells once more, each in the words of the plain statement. Those that cannot be
/// asked for are left as they are.
void askAgain(db::Connection& connection, const Crowded& crowded, PageCells& page)
{
    QStringList queries;
    for (const db::NarrowQuery& question : crowded.query.parts) {
        queries << wholeRows(crowded.query.table) + question.condition();
    }
    const std::vector<db::Recordset> found = connection.openJoined(queries);
    for (std::size_t index = 0; index < found.size(); ++index) {
        page.set(crowded.cells[index], found[index]);
    }
}

/// Sees to it that the rows of each crowded cell are in order, or the cell is left out.
void putInOrder(db::Connection& connection, const std::vector<Crowded>& tables,
                std::map<RoomQuestion::Table, PageCells>& pages)
{
    std::vector<db::WideQuery> queries;
    queries.reserve(tables.size());
    for (const Crowded& crowded : tables) {
        queries.push_back(crowded.query);
    }
    const std::vector<db::RowOrder> orders = connection.rowOrders(queries);
    for (std::size_t index = 0; index < tables.size(); ++index) {
        if (orders[index] == db::RowOrder::Same) {
            continue;
        }
        const Crowded& crowded = tables[index];
        PageCells& page = pages.at(crowded.table);
        for (const PageCells::Cell cell : crowded.cells) {
            page.forget(cell);
        }
        if (orders[index] == db::RowOrder::Other) {
            db::skipWhenRefused([&] { askAgain(connection, crowded, page); });
        }
    }
}

} // namespace

PageCells::PageCells(QStringList rooms, QStringList keys)
    : m_rooms(std::move(rooms)), m_keys(std::move(keys)),
      m_rowsOf(static_cast<std::size_t>(m_rooms.size() * m_keys.size()))
{
}

std::optional<db::Recordset> PageCells::find(const QString& room, const QString& key) const
{
    const Cell cell{m_rooms.indexOf(room), m_keys.indexOf(key)};
    return cell.room < 0 || cell.key < 0 ? std::nullopt : m_rowsOf[position(cell)];
}

std::vector<PageCells::Cell> PageCells::crowded() const
{
    std::vector<Cell> cells;
    for (Cell cell; cell.room < m_rooms.size(); ++cell.room) {
        for (cell.key = 0; cell.key < m_keys.size(); ++cell.key) {
            const std::optional<db::Recordset>& rows = m_rowsOf[position(cell)];
            if (rows && rows->recordCount() > 1) {
                cells.push_back(cell);
            }
        }
    }
    return cells;
}

std::map<RoomQuestion::Table, PageCells> fetchPageCells(db::Database& database,
                                                        const std::vector<RoomQuestion>& pages,
                                                        const QStringList& askedRooms,
                                                        const QStringList& keys)
{
    const QStringList rooms = namelessLast(askedRooms);
    std::map<RoomQuestion::Table, PageCells> found;
    std::vector<Crowded> crowded;
    for (const RoomQuestion& page : pages) {
        db::skipWhenRefused([&] {
            const CellMasks masks(page.table, rooms, keys, database.dialect());
            const QString condition =
                u' ' + masks.condition() + page.periodCondition(database.dialect());
            PageCells cells = masks.sorted(
                database.Db().open(QStringLiteral("Select ") + masks.selectList() +
                                   QStringLiteral(", ") + wholeRows(page.tableName()) + condition));
            Crowded ofTable = crowdedOf(cells, page, condition, database.dialect());
            found[page.table] = std::move(cells);
            if (!ofTable.cells.empty()) {
                crowded.push_back(std::move(ofTable));
            }
        });
    }
    if (!crowded.empty()) {
        putInOrder(database.Db(), crowded, found);
    }
    return found;
}

} // namespace lookup
