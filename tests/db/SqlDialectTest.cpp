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

TEST(ALiteral, leavesQuotesAsTheyStandUnlessTold)
{
    const SqlDialect access(false);
    const SqlDialect mySql(true);
    EXPECT_EQ(access.literal("l'oral"), "'l'oral'");
    EXPECT_EQ(mySql.literal("a\\b"), "'a\\b'");
    EXPECT_EQ(mySql.literal(""), "''");
    for (const char* plain : {"A", "", "é \"x\" %1", "--"}) {
        EXPECT_TRUE(access.holds(plain) && mySql.holds(plain)) << plain;
    }
    EXPECT_FALSE(access.holds("l'oral"));
    EXPECT_TRUE(access.holds("a\\b"));
    EXPECT_FALSE(mySql.holds("a\\b"));
    EXPECT_TRUE(mySql.ofMySql(false).holds("a\\b"));
    EXPECT_TRUE(mySql.withoutBackslashes().holds("a\\b"));
    EXPECT_FALSE(access.holds(QString("a") + QChar(u'\0')));
    EXPECT_EQ(mySql.held({"A", "O'Brien", "B\\2", "A", ""}), QStringList({"A", ""}));
}

TEST(ALiteral, meansItsTextWhereQuotesAreDoubled)
{
    const SqlDialect access(false, SqlDialect::Quotes::Doubled);
    EXPECT_EQ(access.literal("l'oral d''anglais"), "'l''oral d''''anglais'");
    EXPECT_EQ(access.literal("a\\'b"), "'a\\''b'");
    const SqlDialect mySql = access.ofMySql(true);
    EXPECT_EQ(mySql.literal("a\\'b"), "'a\\\\''b'");
    EXPECT_EQ(mySql.ofMySql(false).literal("a\\"), "'a\\'");
    EXPECT_TRUE(mySql.holds("a\\'b"));
    EXPECT_FALSE(mySql.holds(QString("a") + QChar(u'\0')));
}
