#include "plan/WalkCheck.h"

#include "support/TestDatabase.h"

using namespace plan;

namespace
{

/// Two rooms in two slots of a period, asked about on a table with one index or another.
class TheWalk : public test::OnBothDatabases
{
protected:
    /// A timetable with these indexes, large enough for one to be worth its while.
    void make(const QStringList& indexes)
    {
        QStringList statements{
            "create table emplois (Salle varchar(20), XSalle varchar(20), YSalle varchar(20), "
            "SalleB varchar(20), XSalleB varchar(20), YSalleB varchar(20), Seance varchar(20), "
            "Tranche integer, Classe varchar(20))"};
        for (int row = 0; row < 600; ++row) {
            statements << QStringLiteral("insert into emplois (Salle, Seance, Tranche, Classe) "
                                         "values ('R%1', 'Lundi%2', %3, 'C%4')")
                              .arg(row % 20)
                              .arg(row % 30)
                              .arg(row % 5)
                              .arg(row);
        }
        database().execute(statements + indexes);
        m_database.open(database().connectString());
    }

    [[nodiscard]] RoomQuestion question(const QString& room, const QString& key) const
    {
        RoomQuestion question;
        question.room = room;
        question.seanceKey = key;
        question.tranche = "3";
        return question;
    }

    /// Whether the cells come the way of the page that asks about all of them.
    [[nodiscard]] bool isSame(const std::vector<RoomQuestion>& cells)
    {
        return m_walk.isSameWalk(m_database,
                                 " (Salle in ('R1','R2','Amphi é') or XSalle in ('R1','R2','Amphi "
                                 "é')) and Seance in ('Lundi1','Lundi2') and Tranche =3",
                                 cells);
    }

    [[nodiscard]] long long statements() { return m_database.Db().statementCount(); }

    const std::vector<RoomQuestion> m_cells = {
        question("R1", "Lundi1"), question("R2", "Lundi1"), question("R1", "Lundi2"),
        question("Amphi é", "Lundi2"), question("", "Lundi2")};

private:
    db::Database m_database{database().usesMySql()};
    WalkCheck m_walk;
};

} // namespace

TEST_P(TheWalk, isTheSameThroughTheWholeTable)
{
    make({});
    EXPECT_TRUE(isSame(m_cells));
}

TEST_P(TheWalk, isTheSameAlongTheSlots)
{
    make({"create index i on emplois (Tranche, Seance)"});
    EXPECT_TRUE(isSame(m_cells));
}

TEST_P(TheWalk, takesOneStatementToCheck)
{
    make({"create index i on emplois (Tranche, Seance)"});
    const long long before = statements();
    EXPECT_TRUE(isSame(m_cells));
    EXPECT_EQ(statements(), before + 1);
}

TEST_P(TheWalk, isUnknownWhereAnIndexHoldsAllThatTheQuestionsName)
{
    make({"create index i on emplois (Tranche, Seance, Salle, XSalle, YSalle, SalleB, XSalleB, "
          "YSalleB)"});
    EXPECT_FALSE(isSame(m_cells));
}

TEST_P(TheWalk, isUnknownWithoutTheTable)
{
    make({"drop table emplois"});
    EXPECT_FALSE(isSame(m_cells));
}

TEST_P(TheWalk, isFoundOutCellByCellWhereThereAreSeveralWays)
{
    make({"create index i on emplois (Tranche, Seance)", "create index j on emplois (Seance)"});
    // A server is asked about samples first, and tells that these are not enough.
    const bool first = isSame(m_cells);
    EXPECT_EQ(first, !database().usesMySql());
    const long long before = statements();
    EXPECT_TRUE(isSame(m_cells));
    EXPECT_EQ(statements(), before + 1);
}

TEMPORA_ON_BOTH_DATABASES(TheWalk);
