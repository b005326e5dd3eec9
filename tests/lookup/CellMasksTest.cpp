#include "lookup/CellMasks.h"

#include "db/Connection.h"
#include "support/TestDatabase.h"

using namespace lookup;

namespace
{

class TheMasksOfCells : public test::OnBothDatabases
{
protected:
    void SetUp() override
    {
        database().execute(
            {"create table emplois (Salle varchar(20), XSalle varchar(20), YSalle varchar(20), "
             "SalleB varchar(20), XSalleB varchar(20), YSalleB varchar(20), Seance varchar(20), "
             "Classe varchar(20))",
             "insert into emplois (Salle, XSalle, SalleB, Seance, Classe) values "
             "('A', null, null, 'Lundi1', 'one'), ('B', 'A', 'B', 'Lundi1', 'two'), "
             "('A', null, null, 'Lundi2', 'three'), ('', null, null, 'Lundi2', 'nowhere'), "
             "('C', '', null, 'Lundi1', 'elsewhere'), ('A', null, null, 'Mardi1', 'later')"});
    }

    /// The classes of each room in each of two slots, as the masks tell them.
    [[nodiscard]] QStringList classes(const QStringList& rooms)
    {
        const QStringList keys{"Lundi1", "Lundi2"};
        const CellMasks masks(RoomQuestion::Table::emplois, rooms, keys, db::SqlDialect(false));
        db::Connection connection(database().connectString());
        const PageCells cells = masks.sorted(
            connection.open("select " + masks.selectList() + ", emplois.* from emplois where " +
                            masks.condition() + " order by Classe"));
        QStringList texts;
        for (const QString& room : rooms) {
            for (const QString& key : keys) {
                QStringList names;
                const std::optional<db::Recordset> rows = cells.find(room, key);
                for (const db::Row& row : rows.value().rows()) {
                    names << row.field(QStringLiteral("Classe")).toText();
                }
                texts << room + ' ' + key + ": " + names.join(u' ');
            }
        }
        return texts;
    }
};

} // namespace

TEST_P(TheMasksOfCells, bringEachRowToAllItsCellsOnce)
{
    EXPECT_EQ(classes({"A", "B"}),
              QStringList({"A Lundi1: one two", "A Lundi2: three", "B Lundi1: two", "B Lundi2: "}));
}

TEST_P(TheMasksOfCells, lookForARoomWithoutANameInTheFirstColumnAlone)
{
    EXPECT_EQ(classes({"B", ""}),
              QStringList({"B Lundi1: two", "B Lundi2: ", " Lundi1: ", " Lundi2: nowhere"}));
}

TEST_P(TheMasksOfCells, reachBeyondTheBitsOfOneNumber)
{
    QStringList rooms;
    for (int room = 0; room < 40; ++room) {
        rooms << QStringLiteral("R%1").arg(room);
    }
    EXPECT_EQ(classes(rooms + QStringList{"A"}).mid(80),
              QStringList({"A Lundi1: one two", "A Lundi2: three"}));
}

TEMPORA_ON_BOTH_DATABASES(TheMasksOfCells);

TEST(TheMasksOfExams, askForTheFirstColumnAlone)
{
    const CellMasks masks(RoomQuestion::Table::examen, {"A"}, {"Lundi1"}, db::SqlDialect(false));
    EXPECT_EQ(masks.condition(), QStringLiteral("(Salle in ('A')) and Seance in ('Lundi1')"));
    EXPECT_EQ(masks.selectList(),
              QStringLiteral("case when Seance is null then 0 else (Seance='Lundi1')*1 end as "
                             "tempora_k0, case when Salle is null then 0 else (Salle='A')*1 end as "
                             "tempora_r0_0"));
}
