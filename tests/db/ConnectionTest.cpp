#include "db/Connection.h"

#include "ConnectedTest.h"

using namespace db;

namespace
{

class AConnection : public ConnectedTest
{
};

} // namespace

TEST_P(AConnection, writesDatesAsItsProductReadsThem)
{
    // No setting is given: that of Access counts where the product has no dialect of its own.
    EXPECT_EQ(connection().dialect().dateLiteral({2026, 10, 5}),
              database().usesMySql() ? QStringLiteral("'2026/10/05'")
                                     : QStringLiteral("#10/05/26#"));
}

TEST_P(AConnection, keepsTheOrderOfJoinedQueriesThroughAViewOnSqliteAlone)
{
    database().execute({"create table t (a integer, b varchar(9))",
                        "insert into t values (1, 'x'), (1, 'y'), (1, 'z')",
                        "create view v as select * from t order by b desc"});
    EXPECT_EQ(connection().joinedRowOrder(),
              database().usesMySql() ? RowOrder::Untold : RowOrder::Same);
    const std::vector<Recordset> found =
        connection().openJoined({"v.* from v where a = 1", "v.* from v where a = 2"});
    ASSERT_EQ(found.size(), 2);
    EXPECT_EQ(found[0].recordCount(), 3);
    EXPECT_TRUE(found[1].isEmpty());
    if (connection().joinedRowOrder() == RowOrder::Same) {
        EXPECT_EQ(found[0].first().field(QStringLiteral("b")), Value(QStringLiteral("z")));
    }
}

TEST_P(AConnection, tellsWhereTheRowsOfAPartStand)
{
    database().execute(QStringLiteral("create table t (a integer, b integer)"));
    const WideQuery query{
        "t", "a", " a in (1,2) and b=3", {{" (a=1)", " b=3"}, {" (a=2)", " b=3"}}};
    EXPECT_EQ(connection().rowOrders({query}), std::vector{RowOrder::Same});
    EXPECT_EQ(connection().statementCount(), 1);
}

TEST_P(AConnection, countsOneStatementForAnInsert)
{
    database().execute(QStringLiteral("create table t (a varchar(9), d date)"));
    const auto insert = [this] {
        const long long before = connection().statementCount();
        connection().insert(QStringLiteral("t"),
                            {{QStringLiteral("a"), Value(QStringLiteral("x"))},
                             {QStringLiteral("d"), Value(QDate(2026, 10, 5))}});
        return connection().statementCount() - before;
    };
    EXPECT_EQ(insert(), database().usesMySql() ? 2 : 1); // a server is first told how to wait
    EXPECT_EQ(insert(), 1);
}

TEST_P(AConnection, bringsRowsAsOneTextEach)
{
    database().execute({"create table t (a integer, b varchar(9))",
                        "insert into t values (1, null), (2, 'deux')"});
    const Packing packing = connection().packing().value();
    const Recordset rows =
        connection().open("select " + packed(packing, {{"a", "b"}}) + " from t where " +
                          connection().metByMost(QStringLiteral("a>0")) + " order by a");
    ASSERT_EQ(rows.recordCount(), 2);
    PackedRow row(packing, 2);
    ASSERT_TRUE(row.unpack(rows.rows()[0].field(0).toText()));
    EXPECT_EQ(row.fields()[0], QStringLiteral("1"));
    EXPECT_TRUE(row.fields()[1].isNull());
    ASSERT_TRUE(row.unpack(rows.rows()[1].field(0).toText()));
    EXPECT_EQ(row.fields()[1], QStringLiteral("deux"));
}

TEST_P(AConnection, tellsWhichTextsAreEqual)
{
    database().execute(QStringLiteral("create table t (a varchar(9))"));
    EXPECT_EQ(connection().equalTexts({{"t", "a", {"x", "y", "X"}}}),
              std::vector<TextGroups>{database().usesMySql() ? TextGroups({0, 1, 0})
                                                             : TextGroups({0, 1, 2})});
}

TEMPORA_ON_BOTH_DATABASES(AConnection);
