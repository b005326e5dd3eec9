#include "db/SqlDialect.h"

#include "support/RuntimeMatchers.h"

using db::SqlDialect;

TEST(TheAccessDialect, writesMonthDayAndTwoDigitsOfTheYearBetweenHashes)
{
    const SqlDialect dialect(false);
    EXPECT_EQ(dialect.SqlDateDelimiter(), QStringLiteral("#"));
    EXPECT_EQ(dialect.SqlDateFormat(), QStringLiteral("mm/dd/yy"));
    EXPECT_EQ(dialect.dateText(QDate(2007, 3, 15)), QStringLiteral("03/15/07"));
    EXPECT_EQ(dialect.dateLiteral(QDate(2007, 3, 15)), QStringLiteral("#03/15/07#"));
}

TEST(TheMySqlDialect, writesFourDigitsOfTheYearFirstBetweenQuotes)
{
    const SqlDialect dialect(true);
    EXPECT_EQ(dialect.SqlDateDelimiter(), QStringLiteral("'"));
    EXPECT_EQ(dialect.SqlDateFormat(), QStringLiteral("yyyy/mm/dd"));
    EXPECT_EQ(dialect.dateText(QDate(2007, 3, 15)), QStringLiteral("2007/03/15"));
    EXPECT_EQ(dialect.dateLiteral(QDate(2026, 12, 1)), QStringLiteral("'2026/12/01'"));
}
