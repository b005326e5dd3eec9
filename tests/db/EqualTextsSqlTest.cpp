#include "db/EqualTextsSql.h"

#include "support/RuntimeMatchers.h"

using namespace db;

namespace
{

TextQuestion about(const char* column, const std::vector<QString>& texts)
{
    return {QStringLiteral("salle"), QLatin1String(column), texts};
}

} // namespace

TEST(EqualTextsSql, writesAListForSqliteOnceHoweverManyAskAboutIt)
{
    const QString sql =
        sqliteEqualTextsSql({about("Salle", {"Amphi", "Labo"}), about("XSalle", {"Amphi", "Labo"}),
                             about("YSalle", {"Labo", "Amphi"})});
    EXPECT_EQ(sql.count("'Amphi'"), 2);
}

TEST(EqualTextsSql, comparesTheTextsWithTheColumn)
{
    EXPECT_EQ(
        sqliteEqualTextsSql({about("Nom", {"A"}), about("Nom", {"B", "O'B", "C\\"})}),
        QStringLiteral("with l0(n,t) as (values (1,'B'),(2,'O''B'),(3,cast(x'435c' as text))) "
                       "select 1 as q, group_concat(n) as members, count(*) as c from "
                       "(select 0 as n, Nom as t from salle where 0=1 union all "
                       "select n,t from l0) u1 group by t having count(*)>1"));
    const QString ofServer =
        serverEqualTextsSql({about("Nom", {"B", "O'B"})}, TextColumns::AsTheyAre);
    EXPECT_TRUE(ofServer.contains("elt(n,'B','O''B',(select Nom from salle where 0=1))"));
    EXPECT_TRUE(serverEqualTextsSql({about("Nom", {"B", "C\\"})}, TextColumns::InUnicode)
                    .contains("elt(n,_utf8mb4 x'42',_utf8mb4 x'435c',(select convert(Nom using "
                              "utf8mb4) from salle where 0=1))"));
}

TEST(EqualTextsSql, isNoneWithoutTwoTexts)
{
    EXPECT_EQ(sqliteEqualTextsSql({about("Nom", {"A1"}), about("Nom", {})}), QString());
    for (const TextColumns columns : {TextColumns::AsTheyAre, TextColumns::InUnicode}) {
        EXPECT_EQ(serverEqualTextsSql({about("Nom", {"A1"})}, columns), QString());
    }
}
