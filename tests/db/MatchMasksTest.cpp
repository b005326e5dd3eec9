#include "db/MatchMasks.h"

#include "ConnectedTest.h"

using namespace db;

namespace
{

QStringList rooms(int count)
{
    QStringList names;
    for (int room = 1; room <= count; ++room) {
        names << QStringLiteral("R%1").arg(room);
    }
    return names;
}

class Masks : public ConnectedTest
{
protected:
    /// The texts among `wanted` that each row of the table equals, by position.
    std::vector<std::vector<int>> matches(const MatchMasks& wanted)
    {
        const Recordset found = connection().open(
            QStringLiteral("select ") + wanted.selectList(QStringLiteral("m")) +
            QStringLiteral(" from t where ") + wanted.anyOf() + QStringLiteral(" order by n"));
        std::vector<std::vector<int>> all;
        for (const Row& row : found.rows()) {
            all.push_back(wanted.matches(row, 0));
        }
        return all;
    }
};

using Found = std::vector<std::vector<int>>;

} // namespace

TEST(MatchMasks, takeOneColumnForThirtyTexts)
{
    EXPECT_EQ(MatchMasks(QStringLiteral("Salle"), {}).columnCount(), 0);
    EXPECT_EQ(MatchMasks(QStringLiteral("Salle"), rooms(1)).columnCount(), 1);
    EXPECT_EQ(MatchMasks(QStringLiteral("Salle"), rooms(30)).columnCount(), 1);
    EXPECT_EQ(MatchMasks(QStringLiteral("Salle"), rooms(31)).columnCount(), 2);
    EXPECT_EQ(MatchMasks(QStringLiteral("Salle"), rooms(61)).columnCount(), 3);
}

TEST(MatchMasks, findNothingWithoutTexts)
{
    EXPECT_EQ(MatchMasks(QStringLiteral("Salle"), {}).anyOf(), QStringLiteral("1=0"));
}

TEST(MatchMasks, refuseANumberThatTellsOfOtherTexts)
{
    const auto column = std::make_shared<const Columns>(QStringList{QStringLiteral("m0")});
    const auto matches = [&column](int textCount, std::int64_t mask) {
        return MatchMasks(QStringLiteral("Salle"), rooms(textCount))
            .matches(Row(column, {Value(mask)}), 0);
    };
    constexpr std::int64_t thirtyBits = (1 << 30) - 1;
    EXPECT_EQ(matches(2, 3), std::vector<int>({0, 1}));
    EXPECT_EQ(matches(30, thirtyBits).size(), 30U);
    EXPECT_EQ(test::errorNumberOf([&] { std::ignore = matches(2, 4); }),
              runtime::ErrorNumber::Overflow);
    EXPECT_EQ(test::errorNumberOf([&] { std::ignore = matches(2, -1); }),
              runtime::ErrorNumber::Overflow);
    EXPECT_EQ(test::errorNumberOf([&] { std::ignore = matches(30, thirtyBits + 1); }),
              runtime::ErrorNumber::Overflow);
}

TEST_P(Masks, findNamesWithQuotesAndBackslashesWhereQuotesAreDoubled)
{
    database().execute("create table t (n integer, r varchar(20))");
    const QStringList names{"l'oral", "a\\b", "x' or '1'='1", "C"};
    for (int name = 0; name < names.size(); ++name) {
        connection().insert(QStringLiteral("t"), {{QStringLiteral("n"), Value(std::int64_t{name})},
                                                  {QStringLiteral("r"), Value(names[name])}});
    }
    const SqlDialect dialect =
        Connection(database().connectString(),
                   SqlDialect(database().usesMySql(), SqlDialect::Quotes::Doubled))
            .dialect();
    EXPECT_EQ(matches(MatchMasks(QStringLiteral("r"), names, dialect)),
              std::vector<std::vector<int>>({{0}, {1}, {2}, {3}}));
}

TEST_P(Masks, tellTheTextsOnBothSidesOfAColumnsEnd)
{
    database().execute({"create table t (n integer, r varchar(20))",
                        "insert into t values (1, 'R1'), (2, 'R30'), (3, 'R31'), (4, 'R60'), "
                        "(5, 'R61'), (6, 'R62'), (7, null)"});
    EXPECT_EQ(matches(MatchMasks(QStringLiteral("r"), rooms(61))),
              Found({{0}, {29}, {30}, {59}, {60}}));
}

TEST_P(Masks, tellEveryTextThatTheDatabaseTakesForEqual)
{
    const QString collation = database().usesMySql() ? "utf8mb4_general_ci" : "nocase";
    database().execute({"create table t (n integer, r varchar(20) collate " + collation + ")",
                        "insert into t values (1, 'LABO'), (2, 'Atelier')"});
    EXPECT_EQ(matches(MatchMasks(QStringLiteral("r"), {"labo", "Labo", "atelier", "C"})),
              Found({{0, 1}, {2}}));
}

TEMPORA_ON_BOTH_DATABASES(Masks);
