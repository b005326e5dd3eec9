#include "db/ProductChoice.h"

#include "db/AccessProduct.h"
#include "db/MariaDbProduct.h"
#include "db/OdbcHandles.h"
#include "db/SqliteProduct.h"

namespace db
{

std::unique_ptr<const Product> productBehind(const ConnectionHandle& connection)
{
    const QString name = connection.info(SQL_DBMS_NAME);
    const auto isNamed = [&name](const char* word) {
        return name.contains(QLatin1String(word), Qt::CaseInsensitive);
    };
    if (isNamed("sqlite")) {
        return std::make_unique<SqliteProduct>(SqliteProduct::fileBehind(connection));
    }
    if (isNamed("mysql") || isNamed("mariadb")) {
        return std::make_unique<MariaDbProduct>(MariaDbProduct::serverBehind(connection));
    }
    return std::make_unique<AccessProduct>();
}

} // namespace db
