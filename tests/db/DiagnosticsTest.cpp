#include "db/OdbcHandles.h"

#include "support/RuntimeMatchers.h"

using namespace db;
using runtime::ErrorNumber;

namespace
{

ErrorNumber numberOf(const char* state, int native, Product product, const char* text = "",
                     bool opening = false)
{
    return errorNumberOf({QLatin1String(state), native, QLatin1String(text)}, product, opening);
}

} // namespace

TEST(Diagnostics, takeEveryFailureToOpenForADatabaseFailure)
{
    EXPECT_EQ(numberOf("28000", 1045, Product::Other, "", true), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(numberOf("42000", 1049, Product::Other, "", true), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(numberOf("", 0, Product::Other, "", true), ErrorNumber::DatabaseFailure);
}

TEST(Diagnostics, takeALostConnectionForADatabaseFailure)
{
    EXPECT_EQ(numberOf("08S01", 0, Product::Other), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(numberOf("HYT00", 0, Product::Other), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(numberOf("IM004", 0, Product::Other), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(numberOf("HY000", 2006, Product::MySql), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(numberOf("HY000", 2013, Product::MySql), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(numberOf("HY000", 5014, Product::MySql), ErrorNumber::DatabaseFailure);
    EXPECT_EQ(numberOf("70100", 1927, Product::MySql), ErrorNumber::DatabaseFailure);
}

TEST(Diagnostics, takeAFailureWithoutAReasonForADatabaseFailure)
{
    EXPECT_EQ(numberOf("", 0, Product::MySql), ErrorNumber::DatabaseFailure);
}

TEST(Diagnostics, tellAMissingTable)
{
    EXPECT_EQ(numberOf("42S02", 0, Product::Other), ErrorNumber::TableMissing);
    EXPECT_EQ(numberOf("HY000", 1146, Product::MySql), ErrorNumber::TableMissing);
    EXPECT_EQ(numberOf("HY000", 1, Product::Sqlite, "[SQLite]no such table: x (1)"),
              ErrorNumber::TableMissing);
}

TEST(Diagnostics, takeEveryOtherFailureForARefusal)
{
    EXPECT_EQ(numberOf("42000", 1064, Product::MySql), ErrorNumber::StatementRefused);
    EXPECT_EQ(numberOf("42000", 1142, Product::MySql), ErrorNumber::StatementRefused);
    EXPECT_EQ(numberOf("22007", 1292, Product::MySql), ErrorNumber::StatementRefused);
    EXPECT_EQ(numberOf("HY000", 1, Product::Sqlite, "near x: syntax error"),
              ErrorNumber::StatementRefused);
    EXPECT_EQ(numberOf("HY000", 19, Product::Sqlite, "constraint failed"),
              ErrorNumber::StatementRefused);
}

TEST(Diagnostics, takeSqlitesTroubleWithItsFileForADatabaseFailure)
{
    EXPECT_EQ(numberOf("HY000", 5, Product::Sqlite, "database is locked"),
              ErrorNumber::DatabaseFailure);
    EXPECT_EQ(numberOf("HY000", 8, Product::Sqlite, "attempt to write a readonly database"),
              ErrorNumber::DatabaseFailure);
    EXPECT_EQ(numberOf("HY000", 13, Product::Sqlite, "database or disk is full"),
              ErrorNumber::DatabaseFailure);
    EXPECT_EQ(numberOf("HY000", 26, Product::Sqlite, "file is not a database"),
              ErrorNumber::DatabaseFailure);
}
