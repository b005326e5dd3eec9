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
}

TEST(ALiteral, isOneWhenNothingEndsItEarly)
{
    const SqlDialect access(false);
    const SqlDialect mySql(true);
    for (const char* one : {"A", "", "L1''s", "''''"}) {
        EXPECT_TRUE(access.isOneLiteral(one) && mySql.isOneLiteral(one)) << one;
    }
    for (const char* several : {"l'oral", "'", "A'", "'A", "A'''B", "A''B'C"}) {
        EXPECT_FALSE(access.isOneLiteral(several) || mySql.isOneLiteral(several)) << several;
    }
    EXPECT_TRUE(mySql.isOneLiteral("M\\1"));
    EXPECT_TRUE(mySql.isOneLiteral("M\\'s"));
    EXPECT_FALSE(access.isOneLiteral("M\\'s"));
    EXPECT_TRUE(access.isOneLiteral("M\\"));
    EXPECT_FALSE(mySql.isOneLiteral("M\\")); // hides the last quote
    EXPECT_FALSE(mySql.isOneLiteral("M\\\\'"));
    EXPECT_FALSE(access.isOneLiteral(QString("a") + QChar(u'\0')));
    EXPECT_EQ(mySql.askable({"A", "O'Brien", "B\\2", "A", "", "C''"}),
              QStringList({"A", "B\\2", "", "C''"}));
}

TEST(ALiteral, isRefusedWhereAWordFollowsThatContinuesNothing)
{
    const SqlDialect dialect(true);
    for (const char* refused :
         {"Salle d'informatique", "1re année d'anglais", "O'Brien", "L2 'bis'", "s'il n'y a",
          "D''Or d'Eu", "Œuvre d'été (2)", "Salle d'informatique n°2", "L2 d'anglais/espagnol",
          "d'étude_1", "[x] -- l'abc; drop"}) {
        EXPECT_TRUE(dialect.isRefused(refused)) << refused;
    }
    for (const char* asked :
         {"A1", "", "D''Or", "Salle d'or", "x' OR '1'='1", "Amphi'", "A'1", "B'--",
          "C' union select", "E\\'abc", "F'_abc", "G'#abc", "H'?", "I' + J", "K'Like", "L'{abc}"}) {
        EXPECT_FALSE(dialect.isRefused(asked)) << asked;
    }
    const SqlDialect doubled(true, SqlDialect::Quotes::Doubled);
    EXPECT_FALSE(doubled.isRefused("Salle d'informatique"));
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
