#include "db/SqliteSql.h"

#include "support/RuntimeMatchers.h"

using db::adaptToSqlite;

namespace
{

QString adapted(const char* sql)
{
    return adaptToSqlite(QString::fromUtf8(sql));
}

} // namespace

TEST(SqliteSql, writesDateLiteralsAsSqliteKeepsDates)
{
    EXPECT_EQ(adapted("select * from ratrap where DateX =#03/15/07# and x=1"),
              QStringLiteral("select * from ratrap where DateX ='2007-03-15' and x=1"));
    EXPECT_EQ(adapted("#01/01/00##12/31/99#"), QStringLiteral("'2000-01-01''2099-12-31'"));
}

TEST(SqliteSql, leavesWhatIsNoDateBetweenHashes)
{
    EXPECT_EQ(adapted("a=#13/32/07#"), QStringLiteral("a=#13/32/07#"));
    EXPECT_EQ(adapted("a=#"), QStringLiteral("a=#"));
    EXPECT_EQ(adapted("a#b where c=#03/15/07#"), QStringLiteral("a#b where c='2007-03-15'"));
}

TEST(SqliteSql, touchesNothingWithinTextsAndNames)
{
    for (const char* sql :
         {"select '#03/15/07# isnull(x)'", "select \"isnull(x)\"", "select [#03/15/07#]",
          "select `isnull(x)`", "select 'l''#03/15/07#'", "select 'not closed #03/15/07#"}) {
        EXPECT_EQ(adapted(sql), QString::fromUtf8(sql));
    }
}

TEST(SqliteSql, takesATextThatIsNeverClosedToReachToTheEnd)
{
    EXPECT_EQ(adapted("x=#03/15/07# and y='a #03/15/07# isnull(x)"),
              QStringLiteral("x='2007-03-15' and y='a #03/15/07# isnull(x)"));
    EXPECT_EQ(adapted("x=#03/15/07# and [y #03/15/07#"),
              QStringLiteral("x='2007-03-15' and [y #03/15/07#"));
    // The parenthesis stands within the text, so nothing closes the one before it.
    EXPECT_EQ(adapted("isnull(x='a)"), QStringLiteral("isnull(x='a)"));
    EXPECT_EQ(adapted("#03/15/07#'"), QStringLiteral("'2007-03-15''"));
}

TEST(SqliteSql, goesOnBehindATextWithAQuote)
{
    EXPECT_EQ(adapted("a='l''été' and d=#03/15/07#"),
              QStringLiteral("a='l''été' and d='2007-03-15'"));
}

TEST(SqliteSql, writesIsNullAsATestInAnyCaseAndWithBlanks)
{
    EXPECT_EQ(adapted("where ISNULL(Département)"), QStringLiteral("where (Département IS NULL)"));
    EXPECT_EQ(adapted("where (a='x' or IsNull ( b ))"),
              QStringLiteral("where (a='x' or (b IS NULL))"));
    EXPECT_EQ(adapted("not isnull(a)"), QStringLiteral("not (a IS NULL)"));
}

TEST(SqliteSql, adaptsWhatStandsInTheParenthesesOfIsNull)
{
    EXPECT_EQ(adapted("ISNULL(f(a, (b)))"), QStringLiteral("(f(a, (b)) IS NULL)"));
    EXPECT_EQ(adapted("ISNULL(ISNULL(a))"), QStringLiteral("((a IS NULL) IS NULL)"));
    EXPECT_EQ(adapted("ISNULL(')')"), QStringLiteral("(')' IS NULL)"));
    EXPECT_EQ(adapted("ISNULL([a)])"), QStringLiteral("([a)] IS NULL)"));
    EXPECT_EQ(adapted("ISNULL(#03/15/07#)"), QStringLiteral("('2007-03-15' IS NULL)"));
}

TEST(SqliteSql, leavesWhatOnlyLooksLikeIsNull)
{
    for (const char* sql : {"MyISNULL(a)", "ISNULLS(a)", "a ISNULL", "ISNULL(a", "isnull", "i"}) {
        EXPECT_EQ(adapted(sql), QString::fromUtf8(sql));
    }
}
