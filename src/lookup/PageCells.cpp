#include "lookup/PageCells.h"

#include "db/MatchMasks.h"
#include "lookup/JoinedQueries.h"
#include "runtime/RunTimeError.h"

#include <algorithm>
#include <utility>

namespace lookup
{
namespace
{

/// The room and the slot of every row, told by masks in front of its columns. Rooms and keys count
/// from 0, in the order in which they were given.
class CellMasks
{
public:
    /// A room without a name comes last, if at all.
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
        QString lists = m_keys.selectList(QStringLiteral("tempora_k"));
        for (std::size_t column = 0; column < m_rooms.size(); ++column) {
            if (m_rooms[column].columnCount() > 0) {
                lists += QStringLiteral(", ");
                lists += m_rooms[column].selectList(QStringLiteral("tempora_r%1_").arg(column));
            }
        }
        return lists;
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
        std::vector<int> rooms;
        int first = m_keys.columnCount();
        for (const db::MatchMasks& column : m_rooms) {
            for (const int room : column.matches(row, first)) {
                if (std::find(rooms.begin(), rooms.end(), room) == rooms.end()) {
                    rooms.push_back(room);
                }
            }
            first += column.columnCount();
        }
        for (const int key : m_keys.matches(row, 0)) {
            for (const int room : rooms) {
                take(static_cast<std::size_t>(room), static_cast<std::size_t>(key));
            }
        }
    }

private:
    db::MatchMasks m_keys;
    std::vector<db::MatchMasks> m_rooms;
};

/// The rooms, one without a name behind the others.
QStringList namelessLast(QStringList rooms)
{
    if (rooms.removeAll(QString()) > 0) {
        rooms << QString();
    }
    return rooms;
}

/// What stands between the columns put in front of a table's own and the conditions.
QString wholeRows(const RoomQuestion& question)
{
    return question.tableName() + QStringLiteral(".* from ") + question.tableName() +
           QStringLiteral(" WHERE");
}

/// Cells that several rows answer, and the questions about them.
struct Crowded {
    std::vector<std::optional<db::Recordset>*> cells;
    WalkCheck::TableCells asked;
};

/// `asked` has no questions yet.
Crowded crowdedOf(PageCells& cells, RoomQuestion question, WalkCheck::TableCells asked)
{
    Crowded crowded{{}, std::move(asked)};
    for (qsizetype room = 0; room < cells.rooms().size(); ++room) {
        for (qsizetype key = 0; key < cells.keys().size(); ++key) {
            std::optional<db::Recordset>& cell =
                cells.at(static_cast<std::size_t>(room), static_cast<std::size_t>(key));
            if (cell->recordCount() > 1) {
                question.room = cells.rooms()[room];
                question.seanceKey = cells.keys()[key];
                crowded.cells.push_back(&cell);
                crowded.asked.questions.push_back(question);
            }
        }
    }
    return crowded;
}

/// The page's rows by room and slot key; cells without rows, too.
PageCells sortedIntoCells(const db::Recordset& found, const CellMasks& masks,
                          const QStringList& rooms, const QStringList& keys)
{
    const auto keyCount = static_cast<std::size_t>(keys.size());
    std::vector<std::vector<db::Row>> rowsOf(static_cast<std::size_t>(rooms.size()) * keyCount);
    for (const db::Row& row : found.rows()) {
        masks.forCells(row, [&](std::size_t room, std::size_t key) {
            rowsOf[room * keyCount + key].push_back(row);
        });
    }
    PageCells cells(rooms, keys);
    for (std::size_t index = 0; index < rowsOf.size(); ++index) {
        cells.at(index / keyCount, index % keyCount) =
            db::Recordset(found.columns(), std::move(rowsOf[index]));
    }
    return cells;
}

/// Asks for these cells once more, each in the words of the plain statement, so that their rows
/// come in that statement's order. Those that cannot be asked for are left out.
void askAgain(db::Database& database, const Crowded& crowded)
{
    QStringList queries;
    for (const RoomQuestion& question : crowded.asked.questions) {
        queries << wholeRows(question) + question.condition(database.dialect());
    }
    const std::vector<db::Recordset> found = openJoined(database.Db(), queries);
    for (std::size_t index = 0; index < found.size(); ++index) {
        *crowded.cells[index] = found[index];
    }
}

/// Sees to it that the rows of each crowded cell are in order, or the cell is left out.
void putInOrder(db::Database& database, WalkCheck& walk, const std::vector<Crowded>& tables)
{
    std::vector<WalkCheck::TableCells> asked;
    for (const Crowded& crowded : tables) {
        asked.push_back(crowded.asked);
    }
    const std::vector<WalkCheck::Answer> answers = walk.ask(database, asked);
    for (std::size_t table = 0; table < tables.size(); ++table) {
        if (answers[table] == WalkCheck::Answer::SameWalk) {
            continue;
        }
        for (std::optional<db::Recordset>* cell : tables[table].cells) {
            cell->reset();
        }
        if (answers[table] == WalkCheck::Answer::OtherWalk) {
            runtime::skipOnError([&] { askAgain(database, tables[table]); });
        }
    }
}

} // namespace

PageCells::PageCells(QStringList rooms, QStringList keys)
    : m_rooms(std::move(rooms)), m_keys(std::move(keys)),
      m_cells(static_cast<std::size_t>(m_rooms.size() * m_keys.size()))
{
}

std::size_t PageCells::indexOf(std::size_t room, std::size_t key) const
{
    return room * static_cast<std::size_t>(m_keys.size()) + key;
}

std::optional<db::Recordset>& PageCells::at(std::size_t room, std::size_t key)
{
    return m_cells.at(indexOf(room, key));
}

std::optional<db::Recordset> PageCells::find(const QString& room, const QString& key) const
{
    const qsizetype roomIndex = m_rooms.indexOf(room);
    const qsizetype keyIndex = m_keys.indexOf(key);
    return roomIndex < 0 || keyIndex < 0 ? std::nullopt
                                         : m_cells[indexOf(static_cast<std::size_t>(roomIndex),
                                                           static_cast<std::size_t>(keyIndex))];
}

std::map<RoomQuestion::Table, PageCells> fetchPageCells(db::Database& database, WalkCheck& walk,
                                                        const std::vector<RoomQuestion>& pages,
                                                        const QStringList& askedRooms,
                                                        const QStringList& keys)
{
    const QStringList rooms = namelessLast(askedRooms);
    std::map<RoomQuestion::Table, PageCells> found;
    std::vector<Crowded> crowded;
    for (const RoomQuestion& page : pages) {
        runtime::skipOnError([&] {
            const CellMasks masks(page.table, rooms, keys);
            const QString condition =
                u' ' + masks.condition() + page.periodCondition(database.dialect());
            QString select = QStringLiteral("Select ") + masks.selectList() + QStringLiteral(", ");
            if (database.isEmbedded()) {
                select += WalkCheck::whatLooksAtTexts() + QStringLiteral(" as tempora_w, ");
            }
            const db::Recordset rows = database.Db().open(select + wholeRows(page) + condition);
            const bool anyTextsDo = database.isEmbedded() && !rows.isEmpty() &&
                                    rows.first().field(QStringLiteral("tempora_w")).toInt32() == 0;
            PageCells& cells = found[page.table] = sortedIntoCells(rows, masks, rooms, keys);
            Crowded ofTable = crowdedOf(cells, page, {condition, {}, anyTextsDo});
            if (!ofTable.cells.empty()) {
                crowded.push_back(std::move(ofTable));
            }
        });
    }
    if (!crowded.empty()) {
        putInOrder(database, walk, crowded);
    }
    return found;
}

} // namespace lookup
