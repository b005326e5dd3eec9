#pragma once

#include "db/Database.h"
#include "plan/RoomQuestion.h"

#include <QString>
#include <QStringList>
#include <set>
#include <vector>

namespace plan
{

/// Finds out whether the database, asked about a cell alone, would walk through the timetable the
/// way it did for the whole page: then the page's rows of that cell are in the cell's order.
class WalkCheck
{
public:
    /// Whether that holds for all of these cells, which share their table and period.
    /// `pageCondition` stands after "WHERE" in the page's query. Sends one statement at most; what
    /// cannot be found out does not hold.
    [[nodiscard]] bool isSameWalk(db::Database& database, const QString& pageCondition,
                                  const std::vector<RoomQuestion>& cells);

private:
    [[nodiscard]] bool isSameForEach(db::Database& database, const QString& pageCondition,
                                     const std::vector<RoomQuestion>& cells) const;
    [[nodiscard]] bool isSameForSamples(db::Database& database, const QString& pageCondition,
                                        const std::vector<RoomQuestion>& cells);

    /// Tables with more than one index that a cell could be looked up by.
    std::set<RoomQuestion::Table> m_severalWays;
};

} // namespace plan
