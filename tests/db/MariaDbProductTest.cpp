#include "db/MariaDbProduct.h"

#include "db/Connection.h"
#include "db/Database.h"
#include "db/OdbcHandles.h"
#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

using namespace db;
using runtime::ErrorNumber;

namespace
{

ErrorNumber numberOf(const char* state, int native)
{
    return MariaDbProduct({}).errorNumberOf({QLatin1String(state), native, QString()});
}

class OnAServer : public testing::Test
{
protected:
    [[nodiscard]] test::TestDatabase& database() { return m_database; }

private:
    test::TestDatabase m_database{test::DatabaseKind::MariaDb};
};

} // namespace

TEST(MariaDbProduct, takesALostConnectionForADatabaseFailureWhateverItsState)
{
    for (const int code : {2006, 2013, 5014, 1053}) {
        EXPECT_EQ(numberOf("HY000", code), ErrorNumber::DatabaseFailure) << code;
    }
    EXPECT_EQ(numberOf("70100", 1927), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(numberOf("08S01", 0), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(numberOf("", 0), ErrorNumber::DatabaseFailure);
}

TEST(MariaDbProduct, tellsAMissingTableByItsCodeOrItsState)
{
    EXPECT_EQ(numberOf("HY000", 1146), ErrorNumber::TableMissing);
    EXPECT_EQ(numberOf("42S02", 0), ErrorNumber::TableMissing);
}

TEST(MariaDbProduct, takesEveryOtherFailureForARefusal)
{
    EXPECT_EQ(numberOf("42000", 1064), ErrorNumber::StatementRefused);
    EXPECT_EQ(numberOf("42000", 1142), ErrorNumber::StatementRefused);
    EXPECT_EQ(numberOf("22007", 1292), ErrorNumber::StatementRefused);
}

TEST(MariaDbProduct, readsTextsAsTheBytesThatWereSentWhereTheseAreUtf8)
{
    const MariaDbProduct utf8({true, true});
    EXPECT_EQ(utf8.cTypeOf(SQL_WVARCHAR), SQL_C_BINARY);
    EXPECT_EQ(utf8.cTypeOf(SQL_LONGVARCHAR), SQL_C_BINARY);
    EXPECT_EQ(utf8.cTypeOf(SQL_INTEGER), SQL_C_CHAR);
    EXPECT_EQ(utf8.cTypeOf(SQL_TYPE_DATE), SQL_C_CHAR);
    EXPECT_EQ(utf8.cTypeOf(SQL_VARBINARY), SQL_C_WCHAR);
    EXPECT_EQ(utf8.cTypeOf(SQL_BIT), SQL_C_BIT);
    const MariaDbProduct unknown({false, true});
    EXPECT_EQ(unknown.cTypeOf(SQL_WVARCHAR), SQL_C_WCHAR);
    EXPECT_EQ(unknown.cTypeOf(SQL_INTEGER), SQL_C_WCHAR);
    EXPECT_EQ(unknown.cTypeOf(SQL_BIT), SQL_C_BIT);
}

TEST(MariaDbProduct, needsNoSecondConnection)
{
    EXPECT_EQ(MariaDbProduct({}).reconnectString(QStringLiteral("DSN=x")), std::nullopt);
}

TEST_F(OnAServer, theServerSaysWhatItIs)
{
    const EnvironmentHandle environment;
    const ConnectionHandle connection(environment, database().connectString());
    const MariaDbProduct::Server server = MariaDbProduct::serverBehind(connection);
    EXPECT_TRUE(server.sendsUtf8);
    EXPECT_TRUE(server.isMariaDb);
}

TEST_F(OnAServer, aDataSourceSetUpForAccessHasTheServersOwnDialect)
{
    database().execute({QStringLiteral("create table ratrap (DateX date)"),
                        QStringLiteral("insert into ratrap values ('2026-10-05')")});
    Database asAccess(false);
    EXPECT_EQ(asAccess.dialect().dateLiteral({2026, 10, 5}), QStringLiteral("#10/05/26#"));
    asAccess.open(database().connectString());
    EXPECT_EQ(asAccess.dialect().SqlDateDelimiter(), QStringLiteral("'"));
    EXPECT_EQ(asAccess.dialect().SqlDateFormat(), QStringLiteral("yyyy/mm/dd"));
    EXPECT_EQ(asAccess.Db().recordCount(QStringLiteral("select * from ratrap where DateX =") +
                                        asAccess.dialect().dateLiteral({2026, 10, 5})),
              1);
    asAccess.close();
    EXPECT_EQ(asAccess.dialect().SqlDateDelimiter(), QStringLiteral("#"));
}

TEST_F(OnAServer, aDateIsWrittenAsTheTextOfItsLiteral)
{
    database().execute(QStringLiteral(
        "create table t (a date, b text, c varchar(10), d datetime, e timestamp null)"));
    const Value date(QDate(2026, 10, 5));
    std::vector<std::pair<QString, Value>> columns;
    for (const char* name : {"a", "b", "c", "d", "e"}) {
        columns.emplace_back(QLatin1String(name), date);
    }
    Connection(database().connectString()).insert(QStringLiteral("t"), columns);
    EXPECT_EQ(database().read(QStringLiteral("select * from t")),
              QList<QStringList>({{"2026-10-05", "2026/10/05", "2026/10/05", "2026-10-05 00:00:00",
                                   "2026-10-05 00:00:00"}}));
}

/// The driver's library takes the server's message for a format: "%n" in it would end the program.
TEST_F(OnAServer, aPerCentSignInABrokenStatementIsNeverQuotedByTheServer)
{
    database().execute("create table t (a varchar(40))");
    database().execute("insert into t values ('TD %n%s%s%s'), ('l''un %n')");
    Connection connection(database().connectString(), SqlDialect(true));
    const long long before = connection.statementCount();
    EXPECT_EQ(test::errorNumberOf([&] {
                  std::ignore = connection.open("select * from t where a='Salle d'%n%s%s%s'");
              }),
              ErrorNumber::StatementRefused);
    EXPECT_EQ(connection.statementCount(), before);
    EXPECT_EQ(connection.open("select * from t where a='TD %n%s%s%s'").rows().size(), 1U);
    EXPECT_EQ(connection.open("select * from t where a='l''un %n'").rows().size(), 1U);
}
