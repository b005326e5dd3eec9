#include "db/EmbeddedSql.h"

#include "support/RuntimeMatchers.h"

using db::adaptToEmbedded;
using db::dialectDate;

namespace
{

QString adapted(const char* sql)
{
    return adaptToEmbedded(QString::fromUtf8(sql));
}

std::optional<QDate> dateIn(const char* text)
{
    return dialectDate(QString::fromUtf8(text));
}

} // namespace

TEST(EmbeddedSql, writesDateLiteralsAsSqliteKeepsDates)
{
    EXPECT_EQ(adapted("select * from ratrap where DateX =#03/15/07# and x=1"),
              QStringLiteral("select * from ratrap where DateX ='2007-03-15' and x=1"));
    EXPECT_EQ(adapted("#01/01/00##12/31/99#"), QStringLiteral("'2000-01-01''2099-12-31'"));
}

TEST(EmbeddedSql, leavesWhatIsNoDateBetweenHashes)
{
    EXPECT_EQ(adapted("a=#13/32/07#"), QStringLiteral("a=#13/32/07#"));
    EXPECT_EQ(adapted("a=#"), QStringLiteral("a=#"));
    EXPECT_EQ(adapted("a#b where c=#03/15/07#"), QStringLiteral("a#b where c='2007-03-15'"));
}

TEST(EmbeddedSql, touchesNothingWithinTextsAndNames)
{
    for (const char* sql :
         {"select '#03/15/07# isnull(x)'", "select \"isnull(x)\"", "select [#03/15/07#]",
          "select `isnull(x)`", "select 'l''#03/15/07#'", "select 'not closed #03/15/07#"}) {
        EXPECT_EQ(adapted(sql), QString::fromUtf8(sql));
    }
}

TEST(EmbeddedSql, goesOnBehindATextWithAQuote)
{
    EXPECT_EQ(adapted("a='l''été' and d=#03/15/07#"),
              QStringLiteral("a='l''été' and d='2007-03-15'"));
}

TEST(EmbeddedSql, writesIsNullAsATestInAnyCaseAndWithBlanks)
{
    EXPECT_EQ(adapted("where ISNULL(Département)"), QStringLiteral("where (Département IS NULL)"));
    EXPECT_EQ(adapted("where (a='x' or IsNull ( b ))"),
              QStringLiteral("where (a='x' or (b IS NULL))"));
    EXPECT_EQ(adapted("not isnull(a)"), QStringLiteral("not (a IS NULL)"));
}

TEST(EmbeddedSql, adaptsWhatStandsInTheParenthesesOfIsNull)
{
    EXPECT_EQ(adapted("ISNULL(f(a, (b)))"), QStringLiteral("(f(a, (b)) IS NULL)"));
    EXPECT_EQ(adapted("ISNULL(ISNULL(a))"), QStringLiteral("((a IS NULL) IS NULL)"));
    EXPECT_EQ(adapted("ISNULL(')')"), QStringLiteral("(')' IS NULL)"));
    EXPECT_EQ(adapted("ISNULL([a)])"), QStringLiteral("([a)] IS NULL)"));
    EXPECT_EQ(adapted("ISNULL(#03/15/07#)"), QStringLiteral("('2007-03-15' IS NULL)"));
}

TEST(EmbeddedSql, leavesWhatOnlyLooksLikeIsNull)
{
    for (const char* sql : {"MyISNULL(a)", "ISNULLS(a)", "a ISNULL", "ISNULL(a", "isnull", "i"}) {
        EXPECT_EQ(adapted(sql), QString::fromUtf8(sql));
    }
}

TEST(DialectDate, readsTheFormatsOfBothDialects)
{
    EXPECT_EQ(dateIn("03/15/07"), QDate(2007, 3, 15));
    EXPECT_EQ(dateIn(" 3/5/2007 "), QDate(2007, 3, 5));
    EXPECT_EQ(dateIn("2007/03/15"), QDate(2007, 3, 15));
    EXPECT_EQ(dateIn("2007-03-15"), QDate(2007, 3, 15));
}

TEST(DialectDate, takesTwoDigitsOfAYearForThisCentury)
{
    EXPECT_EQ(dateIn("01/01/00"), QDate(2000, 1, 1));
    EXPECT_EQ(dateIn("12/31/99"), QDate(2099, 12, 31));
}

TEST(DialectDate, takesTwoDigitsOfAYearAsAccessDoesWhenTold)
{
    const auto year = [](const char* text) {
        return dialectDate(QString::fromUtf8(text), db::kAccessFirstYear)->year();
    };
    EXPECT_EQ(year("01/01/00"), 2000);
    EXPECT_EQ(year("12/31/29"), 2029);
    EXPECT_EQ(year("01/01/30"), 1930);
    EXPECT_EQ(year("12/31/99"), 1999);
    EXPECT_EQ(year("03/17/2030"), 2030);
}

TEST(DialectDate, isNothingForAnyOtherText)
{
    for (const char* text : {"", "8h30", "15/03/07", "02/30/07", "2007/13/01", "03/15/7",
                             "03/15/07 x", "03-15-07", "2007-03/15", "03/15/07\n", "1/2"}) {
        EXPECT_EQ(dateIn(text), std::nullopt) << text;
    }
}
