#include "db/AccessPaths.h"

#include "ConnectedTest.h"

using namespace db;

namespace
{

Recordset answer(const QStringList& columns, const std::vector<QStringList>& lines)
{
    const auto names = std::make_shared<const Columns>(columns);
    std::vector<Row> rows;
    for (const QStringList& line : lines) {
        std::vector<Value> values;
        for (const QString& text : line) {
            values.emplace_back(text);
        }
        rows.emplace_back(names, std::move(values));
    }
    return {names, std::move(rows)};
}

Recordset sqliteAnswer(const QStringList& details)
{
    std::vector<QStringList> lines;
    for (const QString& detail : details) {
        lines.push_back({detail});
    }
    return answer({"detail"}, lines);
}

/// Each line tells kind of select, table, partitions, type, possible keys, key, its length and
/// remarks.
Recordset mySqlLines(const std::vector<QStringList>& lines)
{
    return answer(
        {"select_type", "table", "partitions", "type", "possible_keys", "key", "key_len", "Extra"},
        lines);
}

/// The same without the first three: about an undivided table.
Recordset mySqlAnswer(const std::vector<QStringList>& lines)
{
    std::vector<QStringList> whole;
    for (const QStringList& line : lines) {
        whole.push_back(QStringList{"SIMPLE", "emplois", ""} + line);
    }
    return mySqlLines(whole);
}

QStringList walksOf(const std::vector<AccessPath>& paths)
{
    QStringList walks;
    for (const AccessPath& path : paths) {
        walks << path.walk;
    }
    return walks;
}

/// A query of several rows and keys, and one of its cells, on real tables.
class APath : public ConnectedTest
{
protected:
    const QString page = "select * from t where a in ('x', 'y') and s in ('1', '2') and p = 3";
    const QString cell = " union all select * from t where a = 'x' and s = '1' and p = 3";

    void makeTable(const QStringList& indexes)
    {
        QStringList statements{"create table t (a varchar(20), s varchar(20), p integer)"};
        // Enough rows for an index to be worth its while.
        for (int row = 0; row < 400; ++row) {
            statements << QString("insert into t values ('r%1', '%2', %3)")
                              .arg(row % 20)
                              .arg(row % 40)
                              .arg(row % 5);
        }
        database().execute(statements + indexes);
    }
};

} // namespace

TEST(SqliteAccessPaths, nameTheWalkOfEachJoinedQuery)
{
    const QStringList one{"SEARCH emplois USING INDEX i (Tranche=? AND Seance=?)"};
    const auto single = sqliteAccessPaths(sqliteAnswer(one));
    ASSERT_TRUE(single);
    EXPECT_EQ(walksOf(*single), one);
    const auto joined = sqliteAccessPaths(sqliteAnswer(
        {"COMPOUND QUERY", "LEFT-MOST SUBQUERY", "SCAN emplois", "UNION ALL", "SCAN emplois"}));
    ASSERT_TRUE(joined);
    EXPECT_EQ(walksOf(*joined), QStringList({"SCAN emplois", "SCAN emplois"}));
}

TEST(SqliteAccessPaths, neverSayThatThereIsNoOtherWay)
{
    const auto paths = sqliteAccessPaths(sqliteAnswer({"SCAN emplois"}));
    ASSERT_TRUE(paths);
    EXPECT_FALSE(paths->front().isOnlyWay);
}

TEST(SqliteAccessPaths, areUnknownWhereSeveralIndexesServe)
{
    EXPECT_EQ(sqliteAccessPaths(
                  sqliteAnswer({"MULTI-INDEX OR", "INDEX 1", "SEARCH t USING INDEX i (Salle=?)",
                                "INDEX 2", "SEARCH t USING INDEX j (XSalle=?)"})),
              std::nullopt);
    EXPECT_EQ(sqliteAccessPaths(sqliteAnswer({"SCAN t", "USE TEMP B-TREE FOR ORDER BY"})),
              std::nullopt);
}

TEST(SqliteAccessPaths, areUnknownWhereAnIndexHoldsAllThatIsAsked)
{
    EXPECT_EQ(sqliteAccessPaths(sqliteAnswer({"SCAN t USING COVERING INDEX i"})), std::nullopt);
    EXPECT_EQ(sqliteAccessPaths(sqliteAnswer({"SEARCH t USING COVERING INDEX i (Seance=?)"})),
              std::nullopt);
}

TEST(MariaDbAccessPaths, takeSeveralPointsOfAnIndexForTheWalkOfOne)
{
    const auto paths = mariaDbAccessPaths(
        mySqlAnswer({{"range", "i", "i", "408", "Using index condition; Using where"},
                     {"ref", "i", "i", "408", "Using where"}}));
    ASSERT_TRUE(paths);
    EXPECT_EQ(walksOf(*paths), QStringList({"i 408", "i 408"}));
}

TEST(MariaDbAccessPaths, differByIndexAndByHowMuchOfItIsUsed)
{
    const auto paths = mariaDbAccessPaths(mySqlAnswer({{"ref", "i", "i", "408", "Using where"},
                                                       {"ref", "i", "i", "5", "Using where"},
                                                       {"ref", "j", "j", "408", "Using where"},
                                                       {"ALL", "", "", "", "Using where"}}));
    ASSERT_TRUE(paths);
    EXPECT_EQ(walksOf(*paths), QStringList({"i 408", "i 5", "j 408", "ALL"}));
}

TEST(MariaDbAccessPaths, sayWhetherThereIsAnotherWay)
{
    const auto paths = mariaDbAccessPaths(mySqlAnswer({{"ref", "i", "i", "408", "Using where"},
                                                       {"ref", "i,j", "i", "408", "Using where"},
                                                       {"ALL", "", "", "", "Using where"},
                                                       {"ALL", "i", "", "", "Using where"}}));
    ASSERT_TRUE(paths);
    EXPECT_TRUE(paths->at(0).isOnlyWay);
    EXPECT_FALSE(paths->at(1).isOnlyWay);
    EXPECT_TRUE(paths->at(2).isOnlyWay);
    EXPECT_FALSE(paths->at(3).isOnlyWay);
}

TEST(MariaDbAccessPaths, areUnknownWhereRowsAreSortedOrGathered)
{
    const auto paths = mariaDbAccessPaths(
        mySqlAnswer({{"range", "i", "i", "408", "Using where; Rowid-ordered scan"},
                     {"index_merge", "i,j", "i,j", "403,403", "Using where"},
                     {"ref|filter", "i,j", "i|j", "5|403", "Using where"},
                     {"ref", "i", "i", "408", "Using where; Using index"}}));
    ASSERT_TRUE(paths);
    EXPECT_EQ(walksOf(*paths), QStringList({"", "", "", ""}));
}

TEST(MariaDbAccessPaths, areUnknownOnATableInParts)
{
    const auto paths = mariaDbAccessPaths(
        mySqlLines({{"SIMPLE", "emplois", "p0,p1", "ref", "i", "i", "408", "Using where"}}));
    ASSERT_TRUE(paths);
    EXPECT_EQ(walksOf(*paths), QStringList({""}));
}

TEST(MariaDbAccessPaths, nameTheTableAndPassOverTheUnionItself)
{
    const auto paths =
        mariaDbAccessPaths(mySqlLines({{"PRIMARY", "courses", "", "ALL", "", "", "", "Using where"},
                                       {"UNION RESULT", "<union1,2>", "", "ALL", "", "", "", ""}}));
    ASSERT_TRUE(paths);
    EXPECT_EQ(*paths, (std::vector<AccessPath>{{"courses", "ALL", true}}));
}

TEST_P(APath, isOneWithoutAnIndex)
{
    makeTable({});
    const auto paths = connection().accessPaths(page + cell);
    ASSERT_TRUE(paths);
    ASSERT_EQ(paths->size(), 2);
    EXPECT_EQ(paths->at(0).walk, paths->at(1).walk);
}

TEST_P(APath, isOneAlongAnIndexOfTheOtherColumns)
{
    makeTable({"create index i on t (p, s)"});
    const auto paths = connection().accessPaths(page + cell);
    ASSERT_TRUE(paths);
    ASSERT_EQ(paths->size(), 2);
    EXPECT_EQ(paths->at(0).walk, paths->at(1).walk);
    EXPECT_TRUE(paths->at(0).walk.contains(QStringLiteral("i")));
}

TEST_P(APath, isAnotherAlongAnotherIndex)
{
    makeTable({"create index i on t (p, s)"});
    const auto paths = connection().accessPaths("select * from t where p = 3 and s = '1'"
                                                " union all select * from t where s like 'x%'");
    ASSERT_TRUE(paths);
    EXPECT_NE(paths->at(0).walk, paths->at(1).walk);
}

TEST_P(APath, needsTheTable)
{
    EXPECT_THROW(static_cast<void>(connection().accessPaths("select * from nowhere")),
                 runtime::RunTimeError);
}

TEMPORA_ON_BOTH_DATABASES(APath);
