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

TEST(EqualTextsSql, comparesInPairsWhatLooksAlike)
{
    EXPECT_EQ(pairedEqualTextsSql({about("Nom", {"Zoo", "Été 1"}),
                                   about("Nom", {"Été 1", "B", "ete-1", "O'B", "ÉTÉ1"})}),
              QStringList("select distinct 1,'1,3',2 from salle where 'Été 1'='ete-1' or "
                          "(Nom='Été 1' and Nom='ete-1') union all "
                          "select distinct 1,'1,5',2 from salle where 'Été 1'='ÉTÉ1' or "
                          "(Nom='Été 1' and Nom='ÉTÉ1') union all "
                          "select distinct 1,'3,5',2 from salle where 'ete-1'='ÉTÉ1' or "
                          "(Nom='ete-1' and Nom='ÉTÉ1')"));
    EXPECT_EQ(pairedEqualTextsSql({about("Nom", {"O'B", "OB"})}),
              QStringList("select distinct 0,'1,2',2 from salle where 'O''B'='OB' or "
                          "(Nom='O''B' and Nom='OB')"));
    EXPECT_EQ(
        pairedEqualTextsSql({about("Nom", {"cœur", "COEUR", "groß", "GROSS"})})[0].count("select"),
        2);
}

TEST(EqualTextsSql, comparesNoPairsWhereNoTwoAreAlike)
{
    EXPECT_EQ(pairedEqualTextsSql({about("Nom", {"A1", "A2", "B1"}), about("Nom", {"A1"})}),
              QStringList());
    EXPECT_EQ(pairedEqualTextsSql({about("Nom", {"A", QString("A") + QChar(u'\0')})}),
              QStringList());
}

TEST(EqualTextsSql, comparesThirtyPairsAStatement)
{
    std::vector<QString> texts; // nine alike: 36 pairs
    for (int blanks = 0; blanks < 9; ++blanks) {
        texts.push_back('A' + QString(blanks, u' '));
    }
    const QStringList statements = pairedEqualTextsSql({about("Nom", texts)});
    ASSERT_EQ(statements.size(), 2);
    EXPECT_EQ(statements[0].count("select"), 30);
    EXPECT_EQ(statements[1].count("select"), 6);
}

TEST(EqualTextsSql, isNoneWithoutTwoTexts)
{
    EXPECT_EQ(sqliteEqualTextsSql({about("Nom", {"A1"}), about("Nom", {})}), QString());
    for (const TextColumns columns : {TextColumns::AsTheyAre, TextColumns::InUnicode}) {
        EXPECT_EQ(serverEqualTextsSql({about("Nom", {"A1"})}, columns), QString());
    }
}
