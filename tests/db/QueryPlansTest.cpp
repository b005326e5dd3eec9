#include "db/QueryPlans.h"

#include "db/Session.h"
#include "support/TestDatabase.h"

#include <optional>

using namespace db;

namespace
{

NarrowQuery query(const QString& room, const QString& key)
{
    return {QStringLiteral(" ( Salle = '%1' or XSalle ='%1' )").arg(room),
            QStringLiteral(" Seance = '%1' and Tranche =3").arg(key)};
}

/// Two rooms in two slots of a period, and one without a name.
const std::vector<NarrowQuery> cells = {
    query("R1", "Lundi1"), query("R2", "Lundi1"), query("R1", "Lundi2"), query("Amphi é", "Lundi2"),
    NarrowQuery{" ( Salle = '' )", " Seance = 'Lundi2' and Tranche =3"}};

WideQuery page(const QString& table, const std::vector<NarrowQuery>& parts)
{
    return {table, QStringLiteral("Salle"),
            QStringLiteral(" (Salle in ('R1','R2','Amphi é') or XSalle in ('R1','R2','Amphi é')) "
                           "and Seance in ('Lundi1','Lundi2') and Tranche =3"),
            parts};
}

/// Queries about cells of a timetable with one index or another.
class RowsOfAPage : public test::OnBothDatabases
{
protected:
    /// A timetable with these indexes and other changes, large enough for an index to be worth its
    /// while.
    void make(const QStringList& changes)
    {
        QStringList statements{
            "create table emplois (Salle varchar(20), XSalle varchar(20), Seance varchar(20), "
            "Tranche integer, Classe varchar(20))"};
        for (int row = 0; row < 600; ++row) {
            statements << QStringLiteral("insert into emplois (Salle, Seance, Tranche, Classe) "
                                         "values ('R%1', 'Lundi%2', %3, 'C%4')")
                              .arg(row % 20)
                              .arg(row % 30)
                              .arg(row % 5)
                              .arg(row);
        }
        database().execute(statements + changes);
        m_session.emplace(database().connectString(), SqlDialect(database().usesMySql()));
    }

    [[nodiscard]] std::vector<RowOrder> ordersOf(const std::vector<WideQuery>& queries)
    {
        return m_session->queryPlans().rowOrders(queries);
    }
    [[nodiscard]] RowOrder order() { return ordersOf({page("emplois", cells)}).front(); }
    /// What cannot be told keeps its order among joined queries on SQLite alone.
    [[nodiscard]] RowOrder untold()
    {
        return database().usesMySql() ? RowOrder::Untold : RowOrder::Other;
    }

    [[nodiscard]] long long statements() const { return m_session->statementCount(); }

private:
    std::optional<Session> m_session;
};

} // namespace

TEST_P(RowsOfAPage, areInOrderThroughTheWholeTable)
{
    make({});
    EXPECT_EQ(order(), RowOrder::Same);
}

TEST_P(RowsOfAPage, areInOrderAlongAnIndexOfTheSlots)
{
    make({"create index i on emplois (Tranche, Seance)"});
    EXPECT_EQ(order(), RowOrder::Same);
}

TEST_P(RowsOfAPage, takeOneStatementToTell)
{
    make({"create index i on emplois (Tranche, Seance)"});
    EXPECT_EQ(order(), RowOrder::Same);
    EXPECT_EQ(statements(), 1);
}

TEST_P(RowsOfAPage, mayBeInAnotherOrderWhereACoveringIndexServes)
{
    make({"create index i on emplois (Tranche, Seance, Salle, XSalle)"});
    EXPECT_EQ(order(), RowOrder::Other);
}

TEST_P(RowsOfAPage, mayBeInAnotherOrderWhereIndexesOfRoomsServe)
{
    make({"create index i on emplois (Salle)", "create index j on emplois (XSalle)"});
    EXPECT_NE(order(), RowOrder::Same);
    EXPECT_NE(order(), RowOrder::Same);
}

TEST_P(RowsOfAPage, areUntoldWithoutTheTable)
{
    make({"drop table emplois"});
    EXPECT_EQ(order(), untold());
}

TEST_P(RowsOfAPage, areLookedAtOneByOneWhereSeveralIndexesCouldServe)
{
    make({"create index i on emplois (Tranche, Seance)", "create index j on emplois (Seance)"});
    // A server is asked about representatives first, and tells that these are not enough.
    EXPECT_EQ(order(), database().usesMySql() ? RowOrder::Other : RowOrder::Same);
    EXPECT_EQ(statements(), 1);
    EXPECT_EQ(order(), RowOrder::Same);
    EXPECT_EQ(statements(), 2);
}

TEST_P(RowsOfAPage, areNotInOrderForTheOneThatAPartialIndexServes)
{
    if (database().usesMySql()) {
        GTEST_SKIP() << "servers have no partial indexes";
    }
    make({"create index i on emplois (Seance)",
          "create index p on emplois (Tranche, Seance, Classe desc) where Salle = 'R2'"});
    const auto cell = [](const QString& room) {
        return NarrowQuery{QStringLiteral(" ( Salle = '%1' )").arg(room),
                           QStringLiteral(" Seance = 'Lundi1' and Tranche =3")};
    };
    EXPECT_EQ(ordersOf({page("emplois", {cell("R1"), cell("R3")})}), std::vector{RowOrder::Same});
    EXPECT_EQ(ordersOf({page("emplois", {cell("R1"), cell("R2")})}), std::vector{RowOrder::Other});
}

TEST_P(RowsOfAPage, areTooManyToTellBeyondTheMostThatCanBeJoined)
{
    make({"create index i on emplois (Tranche, Seance)"});
    std::vector<NarrowQuery> many; // 46 rooms in ten slots: 56 representatives
    for (int cell = 0; cell < 460; ++cell) {
        many.push_back(
            query(QStringLiteral("R%1").arg(cell / 10), QStringLiteral("Lundi%1").arg(cell % 10)));
    }
    EXPECT_EQ(ordersOf({page("emplois", many)}),
              std::vector{database().usesMySql() ? RowOrder::Same : RowOrder::Other});
    EXPECT_EQ(statements(), database().usesMySql() ? 1 : 0);
}

TEST_P(RowsOfAPage, areToldForSeveralTablesAtOnce)
{
    make({"create index i on emplois (Tranche, Seance)"});
    const std::vector<WideQuery> both = {page("emplois", cells), page("examen", cells)};
    EXPECT_EQ(ordersOf(both), (std::vector{untold(), untold()})); // one is not there
    database().execute(QStringLiteral("create table examen as select * from emplois"));
    EXPECT_EQ(ordersOf(both), (std::vector{RowOrder::Same, RowOrder::Same}));
    EXPECT_EQ(statements(), 2);
}

TEST_P(RowsOfAPage, areNotTrustedThroughAView)
{
    make({"alter table emplois rename to courses",
          "create view emplois as select * from courses order by Classe"});
    EXPECT_EQ(order(), untold());
}

TEST_P(RowsOfAPage, areNotTrustedThroughTheIndexOfAPartitionedTable)
{
    if (!database().usesMySql()) {
        GTEST_SKIP() << "SQLite has no partitions";
    }
    make({"create index i on emplois (Tranche, Seance)",
          "alter table emplois partition by key (Classe) partitions 3"});
    EXPECT_EQ(order(), RowOrder::Other);
}

TEMPORA_ON_BOTH_DATABASES(RowsOfAPage);

TEST(ANarrowQuery, asksForItsChoiceAtItsPoint)
{
    EXPECT_EQ((NarrowQuery{" ( Salle = 'A' )", " Seance = 'Lundi1'"}.condition()),
              QStringLiteral(" ( Salle = 'A' ) and Seance = 'Lundi1'"));
}
