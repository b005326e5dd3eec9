#include "lookup/PageCells.h"

#include "support/TestDatabase.h"

using namespace lookup;

namespace
{

/// Rows of two rooms in two slots, more than one in most of these cells.
class APageOfCells : public test::OnBothDatabases
{
protected:
    const QStringList rooms{"A", "B"};
    const QStringList keys{"Lundi1", "Lundi2"};

    void make(const QStringList& changes)
    {
        QStringList statements{
            "create table emplois (Salle varchar(20), XSalle varchar(20), YSalle varchar(20), "
            "SalleB varchar(20), XSalleB varchar(20), YSalleB varchar(20), Seance varchar(20), "
            "Tranche integer, Classe varchar(20))"};
        for (int row = 0; row < 60; ++row) {
            statements << QStringLiteral("insert into emplois (Salle, XSalle, Seance, Tranche, "
                                         "Classe) values ('%1', '%2', 'Lundi%3', %4, 'C%5')")
                              .arg(row % 3 == 0 ? "A" : "C", row % 2 == 0 ? "B" : "D")
                              .arg(row % 5)
                              .arg(1 + row % 2)
                              .arg((row * 7) % 60, 2, 10, QChar(u'0'));
        }
        database().execute(statements + changes);
        m_database.open(database().connectString());
    }

    [[nodiscard]] PageCells fetch()
    {
        RoomQuestion page;
        page.tranche = "1";
        return fetchPageCells(m_database, {page}, rooms, keys)[RoomQuestion::Table::emplois];
    }
    [[nodiscard]] static QString classes(const std::optional<db::Recordset>& rows)
    {
        if (!rows) {
            return "left out";
        }
        QStringList names;
        for (const db::Row& row : rows->rows()) {
            names << row.field(QStringLiteral("Classe")).toText();
        }
        return names.join(u' ');
    }
    /// The classes of all cells as they were fetched.
    [[nodiscard]] QStringList fetched()
    {
        const PageCells cells = fetch();
        QStringList texts;
        for (const QString& room : rooms) {
            for (const QString& key : keys) {
                texts << classes(cells.find(room, key));
            }
        }
        return texts;
    }
    /// The same, asked for in the plain statements.
    [[nodiscard]] QStringList plain()
    {
        QStringList texts;
        for (const QString& room : rooms) {
            for (const QString& key : keys) {
                const RoomQuestion question{RoomQuestion::Table::emplois, room, key, "1", {}, {}};
                texts << classes(m_database.Db().open(question.sql(m_database.dialect())));
            }
        }
        return texts;
    }
    [[nodiscard]] long long statements() { return m_database.Db().statementCount(); }

private:
    db::Database m_database{database().usesMySql()};
};

} // namespace

TEST_P(APageOfCells, isFetchedByTwoStatementsWhereItsRowsAreInOrder)
{
    make({});
    const QStringList cells = fetched();
    EXPECT_EQ(statements(), 2);
    EXPECT_EQ(cells, plain());
    EXPECT_EQ(cells[3].split(u' ').size(), 6); // of B in the second slot
}

TEST_P(APageOfCells, isAskedForAgainInThePlainWordsWhereItsRowsMayNotBe)
{
    // An index of all that the questions name: nobody says that whole rows come that way.
    make({"create index i on emplois (Tranche, Seance, Salle, XSalle, YSalle, SalleB, XSalleB, "
          "YSalleB)"});
    const QStringList cells = fetched();
    EXPECT_EQ(statements(), 3);
    EXPECT_EQ(cells, plain());
}

TEST_P(APageOfCells, isAskedForAgainOrLeftOutThroughAView)
{
    make({"alter table emplois rename to courses",
          "create view emplois as select * from courses order by Classe desc"});
    if (database().usesMySql()) {
        EXPECT_EQ(fetched(), QStringList(4, "left out"));
    } else {
        EXPECT_EQ(fetched(), plain());
    }
}

TEST_P(APageOfCells, knowsNothingOfATableThatIsNotThere)
{
    make({"drop table emplois"});
    EXPECT_EQ(fetched(), QStringList(4, "left out"));
    EXPECT_EQ(statements(), 1);
}

TEST_P(APageOfCells, knowsNothingOfOtherRoomsAndSlots)
{
    make({});
    const PageCells cells = fetch();
    EXPECT_EQ(cells.find("C", "Lundi1"), std::nullopt);
    EXPECT_EQ(cells.find("A", "Mardi1"), std::nullopt);
    int taken = 0;
    cells.forTaken([&taken](const db::Recordset&) { ++taken; });
    EXPECT_EQ(taken, 4);
}

TEMPORA_ON_BOTH_DATABASES(APageOfCells);
