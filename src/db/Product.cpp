#include "db/Product.h"

namespace db
{

std::optional<QString> Product::reconnectString(const QString& /*connectString*/) const
{
    return std::nullopt;
}

runtime::ErrorNumber Product::errorNumberOf(const Diagnostics& diagnostics) const
{
    return errorNumberByState(diagnostics);
}

SqlDialect Product::dialect(const SqlDialect& bySetting) const
{
    return bySetting;
}

QString Product::adapted(const QString& sql) const
{
    return sql;
}

AccessPaths Product::accessPaths(const QString& /*sql*/, Session& /*session*/) const
{
    return std::nullopt;
}

} // namespace db
