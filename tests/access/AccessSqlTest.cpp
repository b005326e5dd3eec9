// Sees what it is to see, and nothing else.

#include "AccessSql.h"

#include <gtest/gtest.h>

namespace
{

QStringList faultsOf(const char* statement)
{
    const test::AccessSql access(
        {"emplois", "Salle", "matière", "DateX", "Date", "Seance du soir"});
    return access.faultsOf(QString::fromUtf8(statement));
}

} // namespace

TEST(AccessSql, takesWhatAccessTakes)
{
    for (const char* statement :
         {"Select * from emplois WHERE (Salle='A1' or ISNULL(matière)) and DateX =#03/15/07#",
          "select count(*) from emplois where `Salle` in ('l''oral','a#b','-- ; x') and 1 <> 2",
          "INSERT INTO `emplois` (`Salle`, `Seance du soir`) VALUES (?, ?)",
          "select [Date] from emplois union all select Salle from emplois"}) {
        EXPECT_EQ(faultsOf(statement), QStringList()) << statement;
    }
}

TEST(AccessSql, findsASemicolon)
{
    EXPECT_EQ(faultsOf("select * from emplois;"), QStringList("Access has no such sign: ;"));
}

TEST(AccessSql, findsDatesOfOtherProducts)
{
    EXPECT_EQ(faultsOf("select * from emplois where DateX = '2007-03-15'"),
              QStringList("a date written as a text: '2007-03-15'"));
    EXPECT_EQ(faultsOf("select * from emplois where DateX ='2007/03/15'"),
              QStringList("a date written as a text: '2007/03/15'"));
}

TEST(AccessSql, findsADateWhoseDayStandsFirst)
{
    EXPECT_EQ(faultsOf("select * from emplois where DateX =#15/03/07#"),
              QStringList("a date that Access reads otherwise: #15/03/07#"));
}

TEST(AccessSql, findsWordsAndSignsOfOtherProducts)
{
    EXPECT_EQ(faultsOf("select Salle from emplois limit 1"),
              QStringList("no word of Access, no name: limit"));
    EXPECT_EQ(faultsOf("select ifnull(Salle, '') from emplois"),
              QStringList("no word of Access, no name: ifnull"));
    EXPECT_EQ(faultsOf("select Salle || 'x' from emplois"),
              QStringList("Access has no such sign: ||"));
    EXPECT_EQ(faultsOf("select Salle from emplois where Salle != 'x' -- all"),
              QStringList({"Access has no such sign: !=", "Access has no such sign: --"}));
}

TEST(AccessSql, findsAReservedNameWithoutBrackets)
{
    EXPECT_EQ(faultsOf("select Date from emplois"),
              QStringList("a name that needs brackets: Date"));
}

TEST(AccessSql, findsABackslashThatWouldHideAQuote)
{
    EXPECT_EQ(faultsOf("select * from emplois where Salle='l\\'''"),
              QStringList("a backslash means itself: 'l\\'''"));
}
