#include "context/DaySlots.h"

#include "support/RuntimeMatchers.h"

#include <limits>

using context::DaySlots;

namespace
{

/// Four slots of 90 minutes, 8h00 to 15h30 with a gap from 11h00 to 12h30.
DaySlots fourSlots()
{
    constexpr int minute = 60;
    DaySlots slots;
    slots.set(1, context::Slot{"8h00", 480 * minute, 90});
    slots.set(2, context::Slot{"9h30", 570 * minute, 90});
    slots.set(3, context::Slot{"12h30", 750 * minute, 90});
    slots.set(4, context::Slot{"14h00", 840 * minute, 90});
    return slots;
}

} // namespace

TEST(DaySlots, areAsManyAsTheDayHas)
{
    EXPECT_EQ(DaySlots().SlotCount(), 0);
    DaySlots slots = fourSlots();
    EXPECT_EQ(slots.SlotCount(), 4);
    EXPECT_EQ(slots.slot(3)->start, "12h30");
    EXPECT_FALSE(slots.slot(5));
    slots.set(3, std::nullopt);
    EXPECT_EQ(slots.SlotCount(), 3);
}

TEST(DaySlots, areOverrunByALongerOccupation)
{
    const DaySlots slots = fourSlots();
    EXPECT_FALSE(slots.OverrunsIntoSlot(2, 90)); // ends as slot 2 starts
    EXPECT_TRUE(slots.OverrunsIntoSlot(2, 91));
    EXPECT_FALSE(slots.OverrunsIntoSlot(3, 180)); // 9h30 to 12h30: the gap is used up
    EXPECT_TRUE(slots.OverrunsIntoSlot(3, 181));
    EXPECT_TRUE(slots.OverrunsIntoSlot(4, 180));
    EXPECT_FALSE(slots.OverrunsIntoSlot(4, 0));
    EXPECT_FALSE(slots.OverrunsIntoSlot(4, -90));
}

TEST(DaySlots, areOverrunHoweverLongTheOccupation)
{
    EXPECT_TRUE(fourSlots().OverrunsIntoSlot(2, std::numeric_limits<int>::max()));
    EXPECT_FALSE(fourSlots().OverrunsIntoSlot(2, std::numeric_limits<int>::min()));
}

TEST(DaySlots, areNeverOverrunWhereTheDayHasNone)
{
    EXPECT_FALSE(fourSlots().OverrunsIntoSlot(5, 600));
    EXPECT_FALSE(fourSlots().OverrunsIntoSlot(6, 600));
    EXPECT_FALSE(fourSlots().OverrunsIntoSlot(11, 600));
}

TEST(DaySlots, areReachedByWhatEndsAfterTheirStart)
{
    const int quarterPastEight = (8 * 60 + 15) * 60;
    EXPECT_FALSE(fourSlots().reaches(2, quarterPastEight, 75)); // until 9h30 sharp
    EXPECT_TRUE(fourSlots().reaches(2, quarterPastEight, 76));
    EXPECT_FALSE(fourSlots().reaches(5, quarterPastEight, 700));
}
