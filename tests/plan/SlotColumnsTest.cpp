#include "plan/SlotColumns.h"

#include "support/RuntimeMatchers.h"

using namespace plan;

namespace
{

constexpr int hour = 3600;
constexpr int minute = 60;

/// A day of three slots, 10h15, 14h00 and 15h45, with the numbers 2, 3 and 4.
context::DaySlots afternoon()
{
    context::DaySlots slots;
    slots.set(2, context::Slot{"10h15", 10 * hour + 15 * minute, 90});
    slots.set(3, context::Slot{"14h00", 14 * hour, 45});
    slots.set(4, context::Slot{"15h45", 15 * hour + 45 * minute, 90});
    return slots;
}

PlanBox boxIn(int slot, const QString& start = "14h00", int minutes = 90)
{
    PlanBox box;
    box.slot = slot;
    box.cell.CellStart = start;
    box.minutes = minutes;
    return box;
}

PlanRow rowOf(const std::vector<PlanBox>& boxes)
{
    PlanRow row;
    row.boxes = boxes;
    return row;
}

/// How many of the columns 2, 3 and 4 a box in the second of them covers.
std::size_t covered(const PlanRow& row)
{
    return columnsOf(afternoon(), row, *boxAt(row, 3), {2, 3, 4}, 1);
}

} // namespace

TEST(SlotColumns, areTheSlotsOfTheDay)
{
    EXPECT_EQ(slotColumns(afternoon(), {}), (std::vector<int>{2, 3, 4}));
    EXPECT_TRUE(slotColumns({}, {}).empty());
}

TEST(SlotColumns, reachFromTheFirstSlotThatADayCanHaveToTheLast)
{
    context::DaySlots slots;
    slots.set(1, context::Slot{"8h00", 8 * hour, 90});
    slots.set(11, context::Slot{"20h00", 20 * hour, 90});
    EXPECT_EQ(slotColumns(slots, {}), (std::vector<int>{1, 11}));
}

TEST(SlotColumns, holdTheSlotsOfBoxesThatTheDayLacks)
{
    PlanContent first;
    first.rows = {rowOf({boxIn(3)}), rowOf({boxIn(4), boxIn(7)})};
    PlanContent second;
    second.rows = {rowOf({boxIn(1), boxIn(7)})};
    EXPECT_EQ(slotColumns(afternoon(), {first, second}), (std::vector<int>{1, 2, 3, 4, 7}));
}

TEST(BoxOfASlot, isTheOneThatStandsThere)
{
    const PlanRow row = rowOf({boxIn(2), boxIn(4)});
    EXPECT_EQ(boxAt(row, 4), &row.boxes[1]);
    EXPECT_EQ(boxAt(row, 3), nullptr);
}

TEST(ColumnsOfABox, areItsOwnAndThoseThatItReachesInto)
{
    // 105 minutes lie between 14h00 and 15h45.
    EXPECT_EQ(covered(rowOf({boxIn(3, "14h00", 105)})), 1U);
    EXPECT_EQ(covered(rowOf({boxIn(3, "14h00", 106)})), 2U);
    EXPECT_EQ(covered(rowOf({boxIn(3, "14h00", 600)})), 2U); // there are no more
}

TEST(ColumnsOfABox, areCountedFromItsOwnStart)
{
    EXPECT_EQ(covered(rowOf({boxIn(3, "14H30", 75)})), 1U);
    EXPECT_EQ(covered(rowOf({boxIn(3, "14H30", 76)})), 2U);
    EXPECT_EQ(covered(rowOf({boxIn(3, "à midi", 600)})), 1U); // no time of day
}

TEST(ColumnsOfABox, endBeforeTheNextBox)
{
    EXPECT_EQ(covered(rowOf({boxIn(3, "14h00", 180), boxIn(4)})), 1U);
    const PlanRow row = rowOf({boxIn(2, "10h15", 600), boxIn(3)});
    EXPECT_EQ(columnsOf(afternoon(), row, row.boxes[0], {2, 3, 4}, 0), 1U);
}

TEST(ColumnsOfABox, leaveOutASlotThatTheDayLacks)
{
    const PlanRow row = rowOf({boxIn(3, "14h00", 600)});
    EXPECT_EQ(columnsOf(afternoon(), row, row.boxes[0], {3, 4, 7}, 0), 2U);
}
