#pragma once

#include "db/AccessPath.h"
#include "db/RowOrder.h"

#include <QString>
#include <QStringList>
#include <set>
#include <vector>

namespace db
{

class Session;

/// Tells by a database's query plans in which order rows come: queries with one access path read
/// their table in one order. Explaining a hundred joined queries costs a fraction of running them.
class QueryPlans
{
public:
    /// `session` outlives the plans.
    explicit QueryPlans(Session& session) : m_session(session) {}

    /// Where the rows of joined queries stand among those that each alone would bring.
    [[nodiscard]] RowOrder joinedRowOrder() const;
    /// An answer for each, by one statement at most. Raises no error.
    [[nodiscard]] std::vector<RowOrder> rowOrders(const std::vector<WideQuery>& queries);

private:
    [[nodiscard]] bool asksAboutEach(const WideQuery& query) const;
    [[nodiscard]] QStringList explainedConditions(const WideQuery& query) const;
    [[nodiscard]] RowOrder rowOrder(const WideQuery& query, const std::vector<AccessPath>& paths);

    Session& m_session;
    /// Tables where an index other than the one read could have served.
    std::set<QString> m_severalPaths;
};

} // namespace db
