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

void Product::beforeWriting(Session& /*session*/) const {}

Failure Product::failureOf(const Diagnostics& diagnostics) const
{
    return failureByState(diagnostics);
}

SqlDialect Product::dialect(const SqlDialect& bySetting) const
{
    return bySetting;
}

QString Product::adapted(const QString& sql) const
{
    return sql;
}

QString Product::metByMost(const QString& condition) const
{
    return condition;
}

QString Product::spelledCountsSql(const std::vector<CountQuestion>& /*questions*/,
                                  const QStringList& /*literals*/) const
{
    return {};
}

QString Product::textCountsSql(const std::vector<CountQuestion>& /*questions*/,
                               const QStringList& /*literals*/) const
{
    return {};
}

AccessPaths Product::accessPaths(const QString& /*sql*/, Session& /*session*/) const
{
    return std::nullopt;
}

} // namespace db
