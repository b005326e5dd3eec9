#include "db/OdbcHandles.h"

#include "support/OdbcConfiguration.h"
#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

#include <utility>

using namespace db;
using runtime::ErrorNumber;

namespace
{

class Handles : public test::OnBothDatabases
{
protected:
    [[nodiscard]] const ConnectionHandle& connection() const { return m_connection; }

private:
    EnvironmentHandle m_environment;
    ConnectionHandle m_connection{m_environment, database().connectString()};
};

} // namespace

TEST_P(Handles, tellWhatTheDriverTells)
{
    EXPECT_TRUE(
        connection()
            .info(SQL_DBMS_NAME)
            .contains(database().usesMySql() ? QStringLiteral("M") : QStringLiteral("SQLite")));
    EXPECT_EQ(connection().info(0xffff), QString());
    EXPECT_TRUE(connection().rereadsBoundFields());
}

TEST_P(Handles, sendAStatementAndFetchItsRows)
{
    StatementHandle statement(connection());
    statement.execute(QStringLiteral("select 'Ω 😀' union all select 'b'"));
    EXPECT_TRUE(statement.fetch());
    EXPECT_TRUE(statement.fetchRowset());
    EXPECT_FALSE(statement.fetch());
}

TEST_P(Handles, countChangedRows)
{
    database().execute({"create table t (a integer)", "insert into t values (1), (1), (2)"});
    StatementHandle deletion(connection());
    deletion.execute(QStringLiteral("delete from t where a=1"));
    EXPECT_EQ(deletion.changedRows(), 2);
    StatementHandle inVain(connection());
    inVain.execute(QStringLiteral("delete from t where a=1")); // finds nothing, which is no failure
    EXPECT_LE(inVain.changedRows(), 0);
}

TEST_P(Handles, throwWhatAFailingCallAmountsTo)
{
    StatementHandle statement(connection());
    EXPECT_EQ(test::errorNumberOf([&] { statement.execute(QStringLiteral("selec")); }),
              ErrorNumber::StatementRefused);
    EXPECT_EQ(test::errorNumberOf([&] { statement.execute(QStringLiteral("select * from no")); }),
              ErrorNumber::TableMissing);
    EXPECT_NO_THROW(statement.check(SQL_SUCCESS_WITH_INFO));
}

TEST_P(Handles, commitEveryStatement)
{
    database().execute(QStringLiteral("create table t (a integer)"));
    StatementHandle statement(connection());
    statement.execute(QStringLiteral("insert into t values (1)"));
    EXPECT_EQ(database().read(QStringLiteral("select a from t")), QList<QStringList>({{"1"}}));
}

TEST_P(Handles, areEmptyOnceMovedAway)
{
    StatementHandle statement(connection());
    const SQLHSTMT handle = statement.get();
    const StatementHandle other = std::move(statement);
    EXPECT_EQ(other.get(), handle);
    EXPECT_EQ(statement.get(), nullptr); // NOLINT(bugprone-use-after-move)
}

TEMPORA_ON_BOTH_DATABASES(Handles);

TEST(AConnectionThatCannotBeOpened, isADatabaseFailureWithoutItsPassword)
{
    static_cast<void>(test::OdbcConfiguration::instance());
    const EnvironmentHandle environment;
    const runtime::RunTimeError error = test::errorOf([&] {
        const ConnectionHandle connection(environment,
                                          QStringLiteral("Driver=/no/secret.so;PWD=secret"));
    });
    EXPECT_EQ(error.number(), ErrorNumber::DatabaseFailure);
    EXPECT_FALSE(error.text().contains(QStringLiteral("secret")));
}
