#include "db/AccessPath.h"

#include "support/RuntimeMatchers.h"

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

/// The same without the first three: about a table without partitions.
Recordset mySqlAnswer(const std::vector<QStringList>& lines)
{
    std::vector<QStringList> whole;
    for (const QStringList& line : lines) {
        whole.push_back(QStringList{"SIMPLE", "emplois", ""} + line);
    }
    return mySqlLines(whole);
}

QStringList pathsOf(const std::vector<AccessPath>& paths)
{
    QStringList texts;
    for (const AccessPath& path : paths) {
        texts << path.path;
    }
    return texts;
}

} // namespace

TEST(SqliteAccessPaths, nameThePathOfEachJoinedQuery)
{
    const QStringList one{"SEARCH emplois USING INDEX i (Tranche=? AND Seance=?)"};
    const auto single = sqliteAccessPaths(sqliteAnswer(one));
    ASSERT_TRUE(single);
    EXPECT_EQ(pathsOf(*single), one);
    const auto joined = sqliteAccessPaths(sqliteAnswer(
        {"COMPOUND QUERY", "LEFT-MOST SUBQUERY", "SCAN emplois", "UNION ALL", "SCAN emplois"}));
    ASSERT_TRUE(joined);
    EXPECT_EQ(pathsOf(*joined), QStringList({"SCAN emplois", "SCAN emplois"}));
}

TEST(SqliteAccessPaths, neverSayThatThereIsNoOther)
{
    const auto paths = sqliteAccessPaths(sqliteAnswer({"SCAN emplois"}));
    ASSERT_TRUE(paths);
    EXPECT_FALSE(paths->front().isOnlyOne);
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

TEST(MariaDbAccessPaths, takeSeveralPointsOfAnIndexForThePathOfOne)
{
    const auto paths = mariaDbAccessPaths(
        mySqlAnswer({{"range", "i", "i", "408", "Using index condition; Using where"},
                     {"ref", "i", "i", "408", "Using where"}}));
    ASSERT_TRUE(paths);
    EXPECT_EQ(pathsOf(*paths), QStringList({"i 408", "i 408"}));
}

TEST(MariaDbAccessPaths, differByIndexAndByHowMuchOfItIsUsed)
{
    const auto paths = mariaDbAccessPaths(mySqlAnswer({{"ref", "i", "i", "408", "Using where"},
                                                       {"ref", "i", "i", "5", "Using where"},
                                                       {"ref", "j", "j", "408", "Using where"},
                                                       {"ALL", "", "", "", "Using where"}}));
    ASSERT_TRUE(paths);
    EXPECT_EQ(pathsOf(*paths), QStringList({"i 408", "i 5", "j 408", "ALL"}));
}

TEST(MariaDbAccessPaths, sayWhetherThereIsAnother)
{
    const auto paths = mariaDbAccessPaths(mySqlAnswer({{"ref", "i", "i", "408", "Using where"},
                                                       {"ref", "i,j", "i", "408", "Using where"},
                                                       {"ALL", "", "", "", "Using where"},
                                                       {"ALL", "i", "", "", "Using where"}}));
    ASSERT_TRUE(paths);
    EXPECT_TRUE(paths->at(0).isOnlyOne);
    EXPECT_FALSE(paths->at(1).isOnlyOne);
    EXPECT_TRUE(paths->at(2).isOnlyOne);
    EXPECT_FALSE(paths->at(3).isOnlyOne);
}

TEST(MariaDbAccessPaths, areUnknownWhereRowsAreSortedOrGathered)
{
    const auto paths = mariaDbAccessPaths(
        mySqlAnswer({{"range", "i", "i", "408", "Using where; Rowid-ordered scan"},
                     {"index_merge", "i,j", "i,j", "403,403", "Using where"},
                     {"ref|filter", "i,j", "i|j", "5|403", "Using where"},
                     {"ref", "i", "i", "408", "Using where; Using index"}}));
    ASSERT_TRUE(paths);
    EXPECT_EQ(pathsOf(*paths), QStringList({"", "", "", ""}));
}

TEST(MariaDbAccessPaths, areUnknownOnAPartitionedTable)
{
    const auto paths = mariaDbAccessPaths(
        mySqlLines({{"SIMPLE", "emplois", "p0,p1", "ref", "i", "i", "408", "Using where"}}));
    ASSERT_TRUE(paths);
    EXPECT_EQ(pathsOf(*paths), QStringList({""}));
}

TEST(MariaDbAccessPaths, nameTheTableAndPassOverTheUnionItself)
{
    const auto paths =
        mariaDbAccessPaths(mySqlLines({{"PRIMARY", "courses", "", "ALL", "", "", "", "Using where"},
                                       {"UNION RESULT", "<union1,2>", "", "ALL", "", "", "", ""}}));
    ASSERT_TRUE(paths);
    EXPECT_EQ(*paths, (std::vector<AccessPath>{{"courses", "ALL", true}}));
}
