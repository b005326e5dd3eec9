#include "app/PlanTable.h"

#include "plan/PlanDesk.h"
#include "support/RuntimeMatchers.h"

using app::PlanTable;
using test::PlanDesk;

namespace
{

/// Rooms R01 and R02 on a day of six slots of 90 minutes from 8h00 on. R01 has 180 minutes from
/// 9h30 on, R02 90 minutes from 8h00 on. On a screen of 15 twips a pixel 8h00 lies at 108; R01's
/// row lies from 47.53 to 67.53, R02's 24.53 pixels further down.
class TheTable : public testing::Test
{
protected:
    TheTable()
    {
        desk.meeting(1, 2).set("Durée", "180");
        desk.meeting(2, 1).set("Classe", "GC2");
        desk.draw();
    }

    [[nodiscard]] PlanTable table() const
    {
        return {desk.state, desk.engine.content(), paint::DrawingTarget()};
    }
    /// Row, column and span of what is under the point; "-" for nothing.
    [[nodiscard]] QString under(double x, double y) const
    {
        return words(table().cellUnder({x, y}));
    }
    [[nodiscard]] static QString words(const std::optional<PlanTable::Cell>& cell)
    {
        return cell ? QString("%1/%2+%3").arg(cell->row).arg(cell->column).arg(cell->span)
                    : QString("-");
    }

    PlanDesk desk{3};
};

} // namespace

TEST_F(TheTable, hasARowPerDrawnRoomAndAColumnPerSlot)
{
    EXPECT_EQ(table().rowCount(), 2);
    EXPECT_EQ(table().columnCount(), 7);
    desk.form.Salle[1].visible = false;
    EXPECT_EQ(table().rowCount(), 1);
    EXPECT_EQ(table().nameOf({0, 0, 1}), "R02, 30 places");
}

TEST_F(TheTable, liesWhereTheTimeAxisIsMovedTo)
{
    paint::DrawingTarget moved;
    moved.TargetXOffset = -50;
    const PlanTable there(desk.state, desk.engine.content(), moved);
    for (const int column : {1, 2, 6}) {
        const PlanTable::Cell cell = *table().cellAt(0, column);
        EXPECT_EQ(there.placeOf(cell), table().placeOf(cell).translated(-50, 0)) << column;
    }
    EXPECT_EQ(there.placeOf({0, 0, 1}), table().placeOf({0, 0, 1})); // the room stays
    EXPECT_EQ(words(there.cellUnder({108 + 160 - 50 + 1, 57})), "0/2+2");
    EXPECT_EQ(words(there.cellUnder({108 + 160 - 50 - 1, 57})), "0/1+1");
}

TEST_F(TheTable, saysInWhichWeekAloneABoxIs)
{
    const QString before = table().nameOf(*table().cellAt(1, 1));
    desk.rows = {};
    desk.meeting(2, 1).set("Classe", "GC2").set("newnature", "10/20");
    desk.draw();
    EXPECT_FALSE(before.contains("semaine"));
    EXPECT_EQ(table().nameOf(*table().cellAt(1, 1)), before + ", semaine A");
}

TEST_F(TheTable, saysWhatElseIsInTheRoomAtTheSameTime)
{
    desk.rows = {};
    desk.meeting(1, 1).set("Durée", "120"); // from 8h00, half an hour into the next
    desk.meeting(1, 2).set("Classe", "GC2");
    desk.draw();
    const auto ends = [this](int column, const QString& words) {
        const QString name = table().nameOf(*table().cellAt(0, column));
        EXPECT_TRUE(name.endsWith(words)) << name.toStdString();
    };
    ends(1, ", En même temps : 9h30 à 11h00, GC2 Dupont Algèbre");
    ends(2, ", En même temps : 8h00 à 10h00, GC1 Dupont Algèbre");
    desk.rows = {};
    desk.meeting(1, 1).set("Durée", "90"); // to the minute
    desk.meeting(1, 2).set("Classe", "GC2");
    desk.draw();
    EXPECT_FALSE(table().words().join('\n').contains("En même temps"));
}

TEST_F(TheTable, joinsTheColumnsThatASeanceReachesInto)
{
    QStringList cells;
    for (const PlanTable::Cell& cell : table().cellsOf(0)) {
        cells << words(cell);
    }
    EXPECT_EQ(cells, QStringList({"0/0+1", "0/1+1", "0/2+2", "0/4+1", "0/5+1", "0/6+1"}));
    EXPECT_EQ(table().cellsOf(1).size(), 7U);
    EXPECT_EQ(words(table().cellAt(0, 3)), "0/2+2");
    EXPECT_EQ(words(table().cellAt(0, 6)), "0/6+1");
    EXPECT_EQ(words(table().cellAt(0, 7)), "-");
    EXPECT_EQ(words(table().cellAt(2, 0)), "-");
    EXPECT_EQ(words(table().cellAt(-1, 0)), "-");
    EXPECT_EQ(words(table().cellAt(0, -1)), "-");
}

TEST_F(TheTable, findsABoxOrAFreeSlotUnderAPoint)
{
    EXPECT_EQ(under(269, 57), "0/2+2"); // R01 from 9h30 on, at 108 + 160
    EXPECT_EQ(under(587, 57), "0/2+2"); // for 320 pixels
    EXPECT_EQ(under(589, 57), "0/4+1");
    EXPECT_EQ(under(110, 57), "0/1+1");
    EXPECT_EQ(under(110, 80), "1/1+1");
    EXPECT_EQ(under(269, 80), "1/2+1");
    EXPECT_EQ(under(50, 57), "-");   // the name
    EXPECT_EQ(under(110, 30), "-");  // row 0
    EXPECT_EQ(under(110, 70), "-");  // between the rows
    EXPECT_EQ(under(110, 120), "-"); // below them
    EXPECT_EQ(under(1400, 57), "-"); // behind the axis
}

TEST_F(TheTable, findsTheRoomAtAHeight)
{
    EXPECT_EQ(words(table().roomAtHeight(48)), "0/0+1");
    EXPECT_EQ(words(table().roomAtHeight(67.5)), "0/0+1");
    EXPECT_EQ(words(table().roomAtHeight(67.6)), "-");
    EXPECT_EQ(words(table().roomAtHeight(72.1)), "1/0+1");
    EXPECT_EQ(words(table().roomAtHeight(30)), "-");
}

TEST_F(TheTable, placesItsCellsWhereTheyAreDrawn)
{
    const double top = (345 + 368) / 15.0;
    EXPECT_EQ(table().placeOf({0, 0, 1}), QRectF(0, top, 100, 20));
    EXPECT_EQ(table().placeOf({0, 2, 2}), QRectF(268, top, 320, 20));
    EXPECT_EQ(table().placeOf({0, 1, 1}), QRectF(108, top, 160, 20));
    EXPECT_EQ(table().placeOf({1, 1, 1}).top(), (345 + 2 * 368) / 15.0);
}

TEST_F(TheTable, namesItsColumnsAfterTheirTimes)
{
    EXPECT_EQ(table().columnTitle(0), "Salle");
    EXPECT_EQ(table().columnTitle(1), "8h00 à 9h30");
    EXPECT_EQ(table().columnTitle(6), "15h30 à 17h00");
    EXPECT_EQ(table().columnTitle(7), "");
    EXPECT_EQ(table().columnTitle(-1), "");
}

TEST_F(TheTable, saysInWordsWhatThereIsToSee)
{
    const QStringList words = table().words();
    ASSERT_EQ(words.size(), 6 + 7);
    EXPECT_EQ(words[0], "R01, 30 places");
    EXPECT_EQ(words[1], "R01, 8h00 à 9h30, pas de case");
    EXPECT_EQ(words[2], "R01, 9h30 à 12h30, GC1 Dupont Algèbre");
    EXPECT_EQ(words[7], "R02, 8h00 à 9h30, GC2 Dupont Algèbre");
}

TEST_F(TheTable, tellsTheTotalsOfTheSlotsThatShowOne)
{
    const QString greyed = "Première ligne, grisée, hors du tableau : R00. Ses séances ne sont pas "
                           "dessinées ici.";
    EXPECT_EQ(table().note(), greyed);
    desk.state.totals.line[1] = {"30", true};
    desk.totals.isOld = true;
    EXPECT_EQ(table().note(), greyed + " Places occupées, comptées avant le dernier choix, 9h30 à "
                                       "11h00 : 30.");
    desk.totals.isOld = false;
    EXPECT_EQ(table().note(), greyed + " Places occupées, 9h30 à 11h00 : 30.");
    desk.form.Salle[0].visible = false;
    EXPECT_EQ(table().note(), "Places occupées, 9h30 à 11h00 : 30.");
}
