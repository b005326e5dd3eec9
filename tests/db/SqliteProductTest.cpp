#include "db/SqliteProduct.h"

#include "db/Connection.h"
#include "support/RuntimeMatchers.h"
#include "support/TestDatabase.h"

#include <array>

using namespace db;
using runtime::ErrorNumber;

namespace
{

ErrorNumber numberOf(const char* state, int native, const char* text)
{
    return SqliteProduct().errorNumberOf({QLatin1String(state), native, QLatin1String(text)});
}

class OnSqlite : public testing::Test
{
protected:
    [[nodiscard]] test::TestDatabase& database() { return m_database; }
    [[nodiscard]] Connection connect() const { return Connection(m_database.connectString()); }

private:
    test::TestDatabase m_database{test::DatabaseKind::Sqlite};
};

} // namespace

TEST(SqliteProduct, tellsAMissingTableByItsText)
{
    EXPECT_EQ(numberOf("HY000", 1, "[SQLite]no such table: x (1)"), ErrorNumber::TableMissing);
    EXPECT_EQ(numberOf("HY000", 1, "near x: syntax error"), ErrorNumber::StatementRefused);
}

TEST(SqliteProduct, takesWhatAColumnDoesNotTakeForARefusal)
{
    for (const int code : {18, 19, 20, 25}) {
        EXPECT_EQ(numberOf("HY000", code, ""), ErrorNumber::StatementRefused) << code;
    }
}

TEST(SqliteProduct, takesTroubleWithItsFileForADatabaseFailure)
{
    for (const int code : {5, 8, 13, 26}) { // locked, read-only, full, no database
        EXPECT_EQ(numberOf("HY000", code, ""), ErrorNumber::DatabaseFailure) << code;
    }
}

TEST(SqliteProduct, goesByTheStateWhereItHasNoCodeOfItsOwn)
{
    EXPECT_EQ(numberOf("08003", 1, "no such table"), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(numberOf("42S02", 0, ""), ErrorNumber::TableMissing);
    EXPECT_EQ(numberOf("HYC00", 0, ""), ErrorNumber::StatementRefused);
}

TEST(SqliteProduct, isConnectedToAgainWithALimitToItsWaits)
{
    EXPECT_EQ(SqliteProduct().reconnectString(QStringLiteral("DSN=x")),
              QStringLiteral("DSN=x;Timeout=1000;NoCreat=1"));
}

TEST(SqliteProduct, readsEveryFieldAsText)
{
    const SqliteProduct sqlite;
    const SQLSMALLINT text = sqlite.textForm() == TextForm::Utf8 ? SQL_C_CHAR : SQL_C_WCHAR;
    for (const SQLSMALLINT type :
         std::array<SQLSMALLINT, 4>{SQL_BIT, SQL_INTEGER, SQL_DOUBLE, SQL_WVARCHAR}) {
        EXPECT_EQ(sqlite.cTypeOf(type), text);
    }
}

TEST(SqliteProduct, turnsAccesssFormsIntoItsOwn)
{
    EXPECT_EQ(SqliteProduct().adapted(QStringLiteral("a=#03/15/07# and ISNULL(b)")),
              QStringLiteral("a='2007-03-15' and (b IS NULL)"));
}

TEST_F(OnSqlite, theStatementsAreWrittenInTheSettingsDialect)
{
    EXPECT_EQ(connect().dialect().dateLiteral({2026, 10, 5}), QStringLiteral("#10/05/26#"));
    EXPECT_EQ(Connection(database().connectString(), SqlDialect(true))
                  .dialect()
                  .dateLiteral({2026, 10, 5}),
              QStringLiteral("'2026/10/05'"));
}

TEST_F(OnSqlite, aDateIsWrittenAsTheTextThatTheLiteralBecomesWhateverTheColumnsType)
{
    database().execute(
        QStringLiteral("create table t (a date, b text, c varchar(10), d, e datetime, f integer)"));
    const Value date(QDate(2026, 10, 5));
    std::vector<std::pair<QString, Value>> columns;
    for (const char* name : {"a", "b", "c", "d", "e", "f"}) {
        columns.emplace_back(QLatin1String(name), date);
    }
    connect().insert(QStringLiteral("t"), columns);
    EXPECT_EQ(database().read(QStringLiteral("select *, typeof(a), typeof(f) from t")),
              QList<QStringList>({{"2026-10-05", "2026-10-05", "2026-10-05", "2026-10-05",
                                   "2026-10-05", "2026-10-05", "text", "text"}}));
}

TEST_F(OnSqlite, aDateIsWrittenAsTheLiteralReadsIt)
{
    // Two digits of a year: 1999 is written as #12/31/99#, which means 2099.
    database().execute(QStringLiteral("create table t (a date)"));
    connect().insert(QStringLiteral("t"), {{QStringLiteral("a"), Value(QDate(1999, 12, 31))}});
    EXPECT_EQ(database().read(QStringLiteral("select a from t")),
              QList<QStringList>({{"2099-12-31"}}));
    Connection byMySqlsDialect(database().connectString(), SqlDialect(true));
    byMySqlsDialect.insert(QStringLiteral("t"),
                           {{QStringLiteral("a"), Value(QDate(1999, 12, 31))}});
    EXPECT_EQ(byMySqlsDialect.recordCount(QStringLiteral("select * from t where a='1999/12/31'")),
              1);
}

TEST_F(OnSqlite, loadsNoLibraryWhateverAStatementSays)
{
    // A name with an apostrophe may bring words of its own into a statement.
    database().execute(QStringLiteral("create table t (a text)"));
    Connection connection = connect();
    for (const char* sql :
         {"select * from t where a='x' or load_extension('/absent.so') or a=''",
          "select LOAD_extension ('/absent.so')", "select \"load_extension\"('/absent.so')",
          "delete from t where load_extension('/absent.so')"}) {
        const runtime::RunTimeError error =
            test::errorOf([&] { connection.execute(QString::fromUtf8(sql)); });
        EXPECT_EQ(error.number(), ErrorNumber::StatementRefused);
        EXPECT_EQ(error.text(), QStringLiteral("load_extension is not allowed."));
    }
    EXPECT_EQ(connection.open(QStringLiteral("select * from t where a='extension'")).recordCount(),
              0);
}
