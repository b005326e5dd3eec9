#include "app/PlanCursor.h"

#include "plan/PlanDesk.h"
#include "support/RuntimeMatchers.h"

#include <initializer_list>

using app::PlanCursor;
using app::PlanTable;
using test::PlanDesk;
using Step = PlanCursor::Step;

namespace
{

/// Rooms R01, R02 and R03 on a day of six slots of 90 minutes from 8h00 on. R01 has 180 minutes in
/// slots 2 and 3, R02 90 minutes in slot 1, R03 180 minutes in slots 5 and 6.
class TheCursor : public testing::Test
{
protected:
    TheCursor()
    {
        desk.meeting(1, 2).set("Durée", "180");
        desk.meeting(2, 1).set("Classe", "GC2");
        desk.meeting(3, 5).set("Durée", "180");
        desk.draw();
    }

    [[nodiscard]] PlanTable table() const
    {
        return {desk.state, desk.engine.content(), paint::DrawingTarget()};
    }
    void begin(int row, int slot) { cursor.put(table(), table().cellIn(row, slot).value()); }
    /// Where it is after these steps, "row/column+span"; "-" for nowhere.
    QString after(std::initializer_list<Step> steps)
    {
        for (const Step step : steps) {
            cursor.move(table(), step, 2);
        }
        return place();
    }
    [[nodiscard]] QString place() const
    {
        const auto cell = cursor.cell(table());
        return cell ? QString("%1/%2+%3").arg(cell->row).arg(cell->column).arg(cell->span)
                    : QString("-");
    }

    PlanDesk desk{4};
    PlanCursor cursor;
};

} // namespace

TEST_F(TheCursor, isPutAwayAtFirstAndDoesNotMove)
{
    EXPECT_FALSE(cursor.isOn());
    EXPECT_EQ(place(), "-");
    EXPECT_EQ(after({Step::Down, Step::First}), "-");
    EXPECT_FALSE(cursor.putBack(table()));
}

TEST_F(TheCursor, goesFromCellToCellThroughTheRow)
{
    begin(0, 1);
    EXPECT_EQ(place(), "0/1+1");
    EXPECT_EQ(after({Step::Right}), "0/2+2");
    EXPECT_EQ(after({Step::Right}), "0/4+1"); // the séance takes two slots
    EXPECT_EQ(after({Step::Left}), "0/2+2");
    EXPECT_EQ(after({Step::Left, Step::Left}), "0/0+1"); // the room
    EXPECT_EQ(after({Step::Left}), "0/0+1");
    EXPECT_EQ(after({Step::RowEnd}), "0/6+1");
    EXPECT_EQ(after({Step::Right}), "0/6+1");
    EXPECT_EQ(after({Step::RowBegin}), "0/0+1");
}

TEST_F(TheCursor, keepsToItsSlotFromRowToRow)
{
    begin(1, 3);
    EXPECT_EQ(after({Step::Up}), "0/2+2"); // the séance that reaches into slot 3
    EXPECT_EQ(after({Step::Up}), "0/2+2");
    EXPECT_EQ(after({Step::Down}), "1/3+1"); // and not slot 2, where that began
    EXPECT_EQ(after({Step::Down, Step::Down}), "2/3+1");
}

TEST_F(TheCursor, goesBySlotOnAfterALongSeance)
{
    begin(0, 3); // in the second half of it
    EXPECT_EQ(after({Step::Right, Step::Down}), "1/4+1");
    EXPECT_EQ(after({Step::Up, Step::Left, Step::Down}), "1/2+1");
}

TEST_F(TheCursor, findsTheFirstAndTheLastCellOfThePage)
{
    begin(1, 3);
    EXPECT_EQ(after({Step::Last}), "2/5+2");
    EXPECT_EQ(after({Step::First}), "0/0+1");
}

TEST_F(TheCursor, goesByAsManyRowsAsAreInSight)
{
    begin(0, 4);
    EXPECT_EQ(after({Step::ScreenDown}), "2/4+1");
    EXPECT_EQ(after({Step::ScreenDown}), "2/4+1");
    EXPECT_EQ(after({Step::ScreenUp}), "0/4+1");
    begin(1, 4);
    EXPECT_EQ(after({Step::ScreenUp}), "0/4+1");
}

TEST_F(TheCursor, standsWhereItStoodAfterARedraw)
{
    begin(1, 1);
    desk.draw();
    cursor.settle(table());
    EXPECT_EQ(place(), "1/1+1");
    desk.form.Salle[1].visible = false; // R01 is not shown: R02 is the first row
    cursor.settle(table());
    EXPECT_EQ(place(), "0/1+1");
}

TEST_F(TheCursor, goesAwayWithItsRoom)
{
    begin(1, 1);
    desk.form.Salle[2].visible = false;
    EXPECT_EQ(place(), "-");
    EXPECT_TRUE(cursor.isOn()); // a refresh may not have come to it yet
    cursor.settle(table());
    EXPECT_FALSE(cursor.isOn());
    EXPECT_FALSE(cursor.putBack(table()));
    desk.form.Salle[2].visible = true;
    EXPECT_EQ(place(), "-");
    EXPECT_TRUE(cursor.putBack(table()));
    EXPECT_EQ(place(), "1/1+1");
}

TEST_F(TheCursor, goesAwayWithItsSlot)
{
    begin(0, 6);
    desk.state.slots = {};
    cursor.settle(table());
    EXPECT_FALSE(cursor.isOn());
}

TEST_F(TheCursor, comesBackWhereItWasPutAwayOrToldToBe)
{
    begin(1, 1);
    cursor.putAway();
    EXPECT_EQ(place(), "-");
    EXPECT_TRUE(cursor.putBack(table()));
    EXPECT_EQ(place(), "1/1+1");
    cursor.putAway();
    cursor.remember(table(), table().cellIn(2, 5).value());
    EXPECT_FALSE(cursor.isOn());
    EXPECT_TRUE(cursor.putBack(table()));
    EXPECT_EQ(place(), "2/5+2");
}
