#include "db/JoinedQueries.h"

#include "db/Product.h"
#include "db/Session.h"

#include <algorithm>
#include <cstddef>

namespace db
{

std::vector<Recordset> openJoined(const QStringList& queries, Session& session)
{
    const qsizetype count =
        std::min(queries.size(), static_cast<qsizetype>(session.product().mostJoined()));
    if (count == 0) {
        return {};
    }
    QStringList parts;
    for (qsizetype index = 0; index < count; ++index) {
        parts << QStringLiteral("Select ") + QString::number(index) +
                     QStringLiteral(" as tempora_i, ") + queries[index];
    }
    const Recordset all = session.open(parts.join(QStringLiteral(" union all ")));
    std::vector<std::vector<Row>> rowsOf(static_cast<std::size_t>(count));
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

} // namespace db
