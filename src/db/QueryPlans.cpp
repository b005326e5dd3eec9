#include "db/QueryPlans.h"

#include "db/Product.h"
#include "db/Session.h"
#include "runtime/RunTimeError.h"

#include <QSet>
#include <algorithm>
#include <cstddef>

namespace db
{
namespace
{

QStringList conditionsOfEach(const std::vector<NarrowQuery>& queries)
{
    QStringList conditions;
    for (const NarrowQuery& query : queries) {
        conditions << query.condition();
    }
    return conditions;
}

/// Every point without a choice, and every choice with one of its points.
QStringList conditionsOfRepresentatives(const std::vector<NarrowQuery>& queries)
{
    QStringList conditions;
    QSet<QString> points;
    QSet<QString> choices;
    for (const NarrowQuery& query : queries) {
        if (!points.contains(query.point)) {
            points.insert(query.point);
            conditions << query.point;
        }
        if (!choices.contains(query.choice)) {
            choices.insert(query.choice);
            conditions << query.condition();
        }
    }
    return conditions;
}

} // namespace

/// Explaining a hundred queries still takes a server some milliseconds, and makes a statement that
/// takes a slow line longer. Where it says that one index alone can serve, and reads that one for a
/// point without any choice, then no choice decides the path: representatives are enough.
bool QueryPlans::asksAboutEach(const WideQuery& query) const
{
    return !m_session.product().tellsOnlyPaths() || m_severalPaths.contains(query.table);
}

QStringList QueryPlans::explainedConditions(const WideQuery& query) const
{
    return QStringList{query.condition} + (asksAboutEach(query)
                                               ? conditionsOfEach(query.parts)
                                               : conditionsOfRepresentatives(query.parts));
}

RowOrder QueryPlans::joinedRowOrder() const
{
    return m_session.product().joinedQueriesKeepOrder() ? RowOrder::Same : RowOrder::Untold;
}

std::vector<RowOrder> QueryPlans::rowOrders(const std::vector<WideQuery>& queries)
{
    const Product& product = m_session.product();
    std::vector<RowOrder> orders(
        queries.size(), joinedRowOrder() == RowOrder::Same ? RowOrder::Other : RowOrder::Untold);
    QStringList explained;
    std::vector<qsizetype> ends; // of each table's
    for (const WideQuery& query : queries) {
        const QString select = QStringLiteral("Select ") + query.column + QStringLiteral(" from ") +
                               query.table + QStringLiteral(" WHERE");
        for (const QString& condition : explainedConditions(query)) {
            explained << select + condition;
        }
        ends.push_back(explained.size());
    }
    if (explained.size() > product.mostJoined()) {
        return orders;
    }
    runtime::skipOnError([&] {
        const AccessPaths paths =
            product.accessPaths(explained.join(QStringLiteral(" union all ")), m_session);
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

RowOrder QueryPlans::rowOrder(const WideQuery& query, const std::vector<AccessPath>& paths)
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
    if (!asksAboutEach(query) && !all([](const AccessPath& path) { return path.isOnlyOne; })) {
        m_severalPaths.insert(query.table); // next time it is worth asking about each
        return RowOrder::Other;
    }
    const QString& first = paths.front().path;
    const bool same =
        !first.isEmpty() && all([&](const AccessPath& path) { return path.path == first; });
    return same ? RowOrder::Same : RowOrder::Other;
}

} // namespace db
