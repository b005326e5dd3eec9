#pragma once

#include "db/Database.h"
#include "lookup/RoomQuestion.h"

#include <QString>
#include <QStringList>
#include <set>
#include <vector>

namespace lookup
{

/// Finds out whether the database, asked about a cell alone, would walk through the timetable the
/// way it did for the whole page: then the page's rows of that cell are in the cell's order.
class WalkCheck
{
public:
    /// Cells that the page's query on one table has brought rows for.
    struct TableCells {
        QString pageCondition;               ///< of that query, as it stands after "WHERE"
        std::vector<RoomQuestion> questions; ///< at least one; they share table and period
        /// The database would walk the same way whatever texts stand in a question.
        bool anyTextsDo = false;
    };

    /// A query of one number for SQLite: 0 when no text can change a walk there. Only an index of
    /// some of the rows or of more than columns, and samples of what columns hold, look at texts.
    [[nodiscard]] static QString whatLooksAtTexts();

    enum class Answer {
        SameWalk,  ///< for all of the cells
        OtherWalk, ///< for some of them, or perhaps so
        Unknown,   ///< What is asked may be a view, which can have an order of its own.
    };

    /// An answer for each table, by one statement. Of a table for which a server knows several ways
    /// it finds out only that the first time, and answers OtherWalk; from then on it asks about
    /// each cell of that table.
    [[nodiscard]] std::vector<Answer> ask(db::Database& database,
                                          const std::vector<TableCells>& tables);

private:
    [[nodiscard]] QStringList conditionsFor(const db::Database& database,
                                            const TableCells& cells) const;
    [[nodiscard]] bool asksAboutEach(const db::Database& database, const TableCells& cells) const;
    [[nodiscard]] Answer judge(const TableCells& cells, const std::vector<db::AccessPath>& paths,
                               bool areSamples);

    /// Tables with more than one index that a cell could be looked up by.
    std::set<RoomQuestion::Table> m_severalWays;
};

} // namespace lookup
