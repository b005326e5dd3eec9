#include "db/JoinedQueries.h"

#include "db/Product.h"
#include "db/Session.h"

#include <cstddef>
#include <utility>

namespace db
{
namespace
{

/// Requires: there are queries, and not too many.
std::vector<Recordset> openAtOnce(const QStringList& queries, Session& session)
{
    QStringList parts;
    for (qsizetype index = 0; index < queries.size(); ++index) {
        parts << QStringLiteral("Select ") + QString::number(index) +
                     QStringLiteral(" as tempora_i, ") + queries[index];
    }
    const Recordset all = session.open(parts.join(QStringLiteral(" union all ")));
    std::vector<std::vector<Row>> rowsOf(static_cast<std::size_t>(queries.size()));
    for (const Row& row : all.rows()) {
        rowsOf.at(static_cast<std::size_t>(row.field(0).toInt32())).push_back(row);
    }
    std::vector<Recordset> found;
    found.reserve(rowsOf.size());
    for (std::vector<Row>& rows : rowsOf) {
        found.emplace_back(all.columns(), std::move(rows));
    }
    return found;
}

} // namespace

std::vector<Recordset> openJoined(const QStringList& queries, Session& session)
{
    std::vector<Recordset> found;
    const int most = session.product().mostJoined();
    for (qsizetype first = 0; first < queries.size(); first += most) {
        for (Recordset& rows : openAtOnce(queries.mid(first, most), session)) {
            found.push_back(std::move(rows));
        }
    }
    return found;
}

} // namespace db
