#include "lookup/JoinedQueries.h"

#include <algorithm>

namespace lookup
{

std::vector<db::Recordset> openJoined(db::Connection& connection, const QStringList& queries)
{
    const qsizetype count = std::min(queries.size(), kMostJoined);
    if (count == 0) {
        return {};
    }
    QStringList parts;
    for (qsizetype index = 0; index < count; ++index) {
        parts << QStringLiteral("Select ") + QString::number(index) +
                     QStringLiteral(" as tempora_i, ") + queries[index];
    }
    const db::Recordset all = connection.open(parts.join(QStringLiteral(" union all ")));
    std::vector<std::vector<db::Row>> rowsOf(static_cast<std::size_t>(count));
    for (const db::Row& row : all.rows()) {
        rowsOf.at(static_cast<std::size_t>(row.field(0).toInt32())).push_back(row);
    }
    std::vector<db::Recordset> found;
    found.reserve(rowsOf.size());
    for (std::vector<db::Row>& rows : rowsOf) {
        found.emplace_back(all.columns(), std::move(rows));
    }
    return found;
}

} // namespace lookup
