#include "db/ProductChoice.h"

#include "db/AccessProduct.h"
#include "db/MariaDbProduct.h"
#include "db/OdbcHandles.h"
#include "db/SqliteProduct.h"
#include "support/OdbcConfiguration.h"
#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

using namespace db;

namespace
{

/// Whether the connection has a product of this class.
template <typename Wanted>
bool leadsTo(const QString& connectString)
{
    const EnvironmentHandle environment;
    const ConnectionHandle connection(environment, connectString);
    return dynamic_cast<const Wanted*>(&connection.product()) != nullptr;
}

} // namespace

TEST(TheProduct, isChosenByWhatTheDriverSays)
{
    const test::TestDatabase sqlite(test::DatabaseKind::Sqlite);
    EXPECT_TRUE(leadsTo<SqliteProduct>(sqlite.connectString()));
    const test::TestDatabase server(test::DatabaseKind::MariaDb);
    EXPECT_TRUE(leadsTo<MariaDbProduct>(server.connectString()));
}

TEST(TheProduct, isAccessWhereTheDriverSaysSoOrIsUnknown)
{
    static_cast<void>(test::OdbcConfiguration::instance());
    EXPECT_TRUE(
        leadsTo<AccessProduct>(QStringLiteral("Driver=" TEMPORA_STRICT_DRIVER ";Log=/dev/null")));
}
