#include "plan/PageCells.h"

#include "db/MatchMasks.h"
#include "plan/JoinedQueries.h"
#include "runtime/RunTimeError.h"

#include <QSet>
#include <algorithm>
#include <vector>

namespace plan
{
namespace
{

/// The room and the slot of every row, told by masks in front of its columns.
class CellMasks
{
public:
    CellMasks(RoomQuestion::Table table, const QStringList& rooms, const QStringList& keys)
        : m_keys(QStringLiteral("Seance"), keys)
    {
        for (const QString& column : RoomQuestion::roomColumns(table)) {
            QStringList names = rooms;
            if (column != u"Salle") {
                names.removeAll(QString()); // without a name only `Salle` is asked about
            }
            m_rooms.emplace_back(column, names);
        }
    }

    [[nodiscard]] QString selectList() const
    {
        QStringList lists{m_keys.selectList(QStringLiteral("tempora_k"))};
        for (std::size_t column = 0; column < m_rooms.size(); ++column) {
            if (m_rooms[column].columnCount() > 0) {
                lists << m_rooms[column].selectList(QStringLiteral("tempora_r%1_").arg(column));
            }
        }
        return lists.join(QStringLiteral(", "));
    }

    [[nodiscard]] int columnCount() const
    {
        int count = m_keys.columnCount();
        for (const db::MatchMasks& column : m_rooms) {
            count += column.columnCount();
        }
        return count;
    }

    [[nodiscard]] QString condition() const
    {
        QStringList rooms;
        for (const db::MatchMasks& column : m_rooms) {
            rooms << column.anyOf();
        }
        return u'(' + rooms.join(QStringLiteral(" or ")) + QStringLiteral(") and ") +
               m_keys.anyOf();
    }

    /// Calls `take` for every cell that the row belongs to, once each.
    template <typename Take>
    void forCells(const db::Row& row, Take take) const
    {
        QSet<QString> rooms;
        int first = m_keys.columnCount();
        for (const db::MatchMasks& column : m_rooms) {
            for (const int room : column.matches(row, first)) {
                rooms.insert(column.texts()[room]);
            }
            first += column.columnCount();
        }
        for (const int key : m_keys.matches(row, 0)) {
            for (const QString& room : rooms) {
                take(room, m_keys.texts()[key]);
            }
        }
    }

private:
    db::MatchMasks m_keys;
    std::vector<db::MatchMasks> m_rooms;
};

/// A question about one cell, as it stands after the columns that are put in front of its own.
QString cellQuery(const RoomQuestion& question, const db::SqlDialect& dialect)
{
    return question.tableName() + QStringLiteral(".* from ") + question.tableName() +
           QStringLiteral(" WHERE") + question.condition(dialect);
}

/// Whether the database would find the rows of these cells on the very walk through the table that
/// brought the page's rows. `pageQuery` is that query, with `masks` columns in front.
bool areOnTheWay(db::Connection& connection, const QString& pageQuery, int masks,
                 const QStringList& cellQueries)
{
    if (cellQueries.size() >= kMostJoined) {
        return false;
    }
    QString joined = pageQuery;
    const QString select =
        QStringLiteral(" union all Select ") + QStringLiteral("0, ").repeated(masks);
    for (const QString& query : cellQueries) {
        joined += select + query;
    }
    bool same = false;
    runtime::skipOnError([&] {
        const std::optional<QStringList> paths = connection.accessPaths(joined);
        same = paths && paths->size() == cellQueries.size() + 1 &&
               paths->count(paths->first()) == paths->size();
    });
    return same;
}

/// Cells that several rows answer, and the questions about them.
struct Crowded {
    std::vector<QPair<QString, QString>> cells;
    QStringList queries;
};

Crowded crowdedOf(const PageCells& cells, RoomQuestion question, const QStringList& rooms,
                  const QStringList& keys, const db::SqlDialect& dialect)
{
    Crowded crowded;
    for (const QString& room : rooms) {
        for (const QString& key : keys) {
            if (cells.value({room, key}).recordCount() > 1) {
                question.room = room;
                question.seanceKey = key;
                crowded.cells.emplace_back(room, key);
                crowded.queries << cellQuery(question, dialect);
            }
        }
    }
    return crowded;
}

/// The page's rows by room and slot key; cells without rows, too.
PageCells sortedIntoCells(const db::Recordset& found, const CellMasks& masks,
                          const QStringList& rooms, const QStringList& keys)
{
    QHash<QPair<QString, QString>, std::vector<db::Row>> rowsOf;
    for (const db::Row& row : found.rows()) {
        masks.forCells(row, [&](const QString& room, const QString& key) {
            rowsOf[{room, key}].push_back(row);
        });
    }
    PageCells cells;
    for (const QString& room : rooms) {
        for (const QString& key : keys) {
            cells.insert({room, key}, db::Recordset(found.columns(), rowsOf.take({room, key})));
        }
    }
    return cells;
}

/// Asks for these cells once more, each in the words of the plain statement, so that their rows
/// come in that statement's order. Those that cannot be asked for are taken out.
void putInOrder(db::Connection& connection, const Crowded& crowded, PageCells& cells)
{
    for (const QPair<QString, QString>& cell : crowded.cells) {
        cells.remove(cell);
    }
    const std::vector<db::Recordset> found = openJoined(connection, crowded.queries);
    for (std::size_t index = 0; index < found.size(); ++index) {
        cells.insert(crowded.cells[index], found[index]);
    }
}

} // namespace

PageCells fetchPageCells(db::Database& database, const RoomQuestion& page, const QStringList& rooms,
                         const QStringList& keys)
{
    const CellMasks masks(page.table, rooms, keys);
    const QString pageQuery = QStringLiteral("Select ") + masks.selectList() +
                              QStringLiteral(", ") + page.tableName() + QStringLiteral(".* from ") +
                              page.tableName() + QStringLiteral(" WHERE ") + masks.condition() +
                              page.periodCondition(database.dialect());
    PageCells cells = sortedIntoCells(database.Db().open(pageQuery), masks, rooms, keys);
    const Crowded crowded = crowdedOf(cells, page, rooms, keys, database.dialect());
    if (crowded.cells.empty()) {
        return cells;
    }
    // Make-ups are few: asking for them again costs no more than asking about the way.
    const bool inOrder =
        page.table != RoomQuestion::Table::ratrap &&
        areOnTheWay(database.Db(), pageQuery, masks.columnCount(), crowded.queries);
    if (!inOrder) {
        putInOrder(database.Db(), crowded, cells);
    }
    return cells;
}

} // namespace plan
