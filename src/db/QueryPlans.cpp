#include "db/QueryPlans.h"

#include "db/Product.h"
#include "db/Session.h"
#include "runtime/RunTimeError.h"

#include <algorithm>
#include <cstddef>

namespace db
{
namespace
{

/// What the paths of the query and its parts tell.
RowOrder rowOrder(const WideQuery& query, const std::vector<AccessPath>& paths)
{
    const auto all = [&paths](auto holds) {
        return std::all_of(paths.begin(), paths.end(), holds);
    };
    if (!all([&](const AccessPath& path) { // a view can have an order of its own
            return path.table.isEmpty() ||
                   path.table.compare(query.table, Qt::CaseInsensitive) == 0;
        })) {
        return RowOrder::Untold;
    }
    const QString& first = paths.front().path;
    const bool same =
        !first.isEmpty() && all([&](const AccessPath& path) { return path.path == first; });
    return same ? RowOrder::Same : RowOrder::Other;
}

} // namespace

RowOrder joinedRowOrder(Session& session)
{
    return session.product().joinedQueriesKeepOrder() ? RowOrder::Same : RowOrder::Untold;
}

std::vector<RowOrder> rowOrders(const std::vector<WideQuery>& queries, Session& session)
{
    const Product& product = session.product();
    std::vector<RowOrder> orders(queries.size(), joinedRowOrder(session) == RowOrder::Same
                                                     ? RowOrder::Other
                                                     : RowOrder::Untold);
    QStringList explained;
    std::vector<qsizetype> ends; // of each table's
    for (const WideQuery& query : queries) {
        const QString select = QStringLiteral("Select ") + query.column + QStringLiteral(" from ") +
                               query.table + QStringLiteral(" WHERE");
        explained << select + query.condition;
        for (const QString& part : query.parts) {
            explained << select + part;
        }
        ends.push_back(explained.size());
    }
    if (explained.size() > product.mostJoined()) {
        return orders;
    }
    runtime::skipOnError([&] {
        const AccessPaths paths =
            product.accessPaths(explained.join(QStringLiteral(" union all ")), session);
        if (!paths || static_cast<qsizetype>(paths->size()) != explained.size()) {
            return;
        }
        auto path = paths->begin();
        for (std::size_t index = 0; index < queries.size(); ++index) {
            const auto end = paths->begin() + ends[index];
            orders[index] = rowOrder(queries[index], {path, end});
            path = end;
        }
    });
    return orders;
}

} // namespace db
