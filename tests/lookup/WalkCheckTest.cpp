#include "lookup/WalkCheck.h"

#include "support/TestDatabase.h"

using namespace lookup;

namespace
{

/// Two rooms in two slots of a period, asked about on a table with one index or another.
class TheWalk : public test::OnBothDatabases
{
protected:
    /// A timetable with these indexes and other changes, large enough for an index to be worth its
    /// while.
    void make(const QStringList& changes)
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
        database().execute(statements + changes);
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
    [[nodiscard]] WalkCheck::Answer answer()
    {
        const QString page =
            " (Salle in ('R1','R2','Amphi é') or XSalle in ('R1','R2','Amphi é')) and Seance in "
            "('Lundi1','Lundi2') and Tranche =3";
        return ask({{page, m_cells}}).front();
    }
    [[nodiscard]] std::vector<WalkCheck::Answer>
    ask(const std::vector<WalkCheck::TableCells>& tables)
    {
        return m_walk.ask(m_database, tables);
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
    EXPECT_EQ(answer(), WalkCheck::Answer::SameWalk);
}

TEST_P(TheWalk, isTheSameAlongTheSlots)
{
    make({"create index i on emplois (Tranche, Seance)"});
    EXPECT_EQ(answer(), WalkCheck::Answer::SameWalk);
}

TEST_P(TheWalk, takesOneStatementToCheck)
{
    make({"create index i on emplois (Tranche, Seance)"});
    const long long before = statements();
    EXPECT_EQ(answer(), WalkCheck::Answer::SameWalk);
    EXPECT_EQ(statements(), before + 1);
}

TEST_P(TheWalk, isUnknownWhereAnIndexHoldsAllThatTheQuestionsName)
{
    make({"create index i on emplois (Tranche, Seance, Salle, XSalle, YSalle, SalleB, XSalleB, "
          "YSalleB)"});
    EXPECT_EQ(answer(), WalkCheck::Answer::OtherWalk);
}

TEST_P(TheWalk, isUnknownWithoutTheTable)
{
    make({"drop table emplois"});
    EXPECT_NE(answer(), WalkCheck::Answer::SameWalk);
}

TEST_P(TheWalk, isFoundOutCellByCellWhereThereAreSeveralWays)
{
    make({"create index i on emplois (Tranche, Seance)", "create index j on emplois (Seance)"});
    // A server is asked about samples first, and tells that these are not enough.
    EXPECT_EQ(answer(),
              database().usesMySql() ? WalkCheck::Answer::OtherWalk : WalkCheck::Answer::SameWalk);
    const long long before = statements();
    EXPECT_EQ(answer(), WalkCheck::Answer::SameWalk);
    EXPECT_EQ(statements(), before + 1);
}

TEST_P(TheWalk, isOneForAllTextsUnlessAnIndexLooksAtThem)
{
    if (database().usesMySql()) {
        GTEST_SKIP() << "a server tells by itself what could serve a question";
    }
    const auto looks = [this](const QString& change) {
        database().execute(change);
        db::Connection connection(database().connectString());
        return connection.open(QStringLiteral("select ") + WalkCheck::whatLooksAtTexts())
                   .first()
                   .field(0)
                   .toInt32() != 0;
    };
    make({"create index i on emplois (Tranche, Seance)"});
    EXPECT_FALSE(looks("create index j on emplois (Salle collate nocase desc)"));
    EXPECT_TRUE(looks("create index k on emplois (Seance) where Salle = 'R1'"));
    EXPECT_TRUE(looks("drop index k; create index k on emplois (lower(Salle))"));
    EXPECT_FALSE(looks("drop index k"));
}

TEST_P(TheWalk, isFoundOutByOneQuestionOfEachFormWhereTextsDoNotMatter)
{
    make({"create index i on emplois (Tranche, Seance)"});
    const QString page = " Salle in ('R1') and Seance in ('Lundi1') and Tranche =3";
    EXPECT_EQ(ask({{page, m_cells, true}}), std::vector(1, WalkCheck::Answer::SameWalk));
}

TEST_P(TheWalk, isAskedAboutForAllTablesAtOnce)
{
    make({"create index i on emplois (Tranche, Seance)"});
    std::vector<RoomQuestion> exams = m_cells;
    for (RoomQuestion& question : exams) {
        question.examWeek = "1";
        question.table = RoomQuestion::Table::examen; // a table that is not there
    }
    const QString page = " Salle in ('R1','R2') and Seance in ('Lundi1') and Tranche =3";
    const auto without = ask({{page, m_cells}, {page, exams}});
    EXPECT_NE(without[0], WalkCheck::Answer::SameWalk);
    EXPECT_NE(without[1], WalkCheck::Answer::SameWalk);
    database().execute(QStringLiteral("create table examen as select emplois.*, 1 as Semaine from "
                                      "emplois"));
    const long long before = statements();
    EXPECT_EQ(ask({{page, m_cells}, {page, exams}}), std::vector(2, WalkCheck::Answer::SameWalk));
    EXPECT_EQ(statements(), before + 1);
}

TEST_P(TheWalk, throughAViewIsNotTrusted)
{
    make({"alter table emplois rename to courses",
          "create view emplois as select * from courses order by Classe"});
    // SQLite tells that it sorts.
    EXPECT_EQ(answer(),
              database().usesMySql() ? WalkCheck::Answer::Unknown : WalkCheck::Answer::OtherWalk);
}

TEST_P(TheWalk, throughTheIndexOfATableInPartsIsNotTrusted)
{
    if (!database().usesMySql()) {
        GTEST_SKIP() << "SQLite has no tables in parts";
    }
    make({"create index i on emplois (Tranche, Seance)",
          "alter table emplois partition by key (Classe) partitions 3"});
    EXPECT_EQ(answer(), WalkCheck::Answer::OtherWalk);
}

TEMPORA_ON_BOTH_DATABASES(TheWalk);
