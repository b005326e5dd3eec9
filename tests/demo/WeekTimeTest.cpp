#include "demo/WeekTime.h"

#include "support/RuntimeMatchers.h"

#include <gtest/gtest.h>

using namespace demo;

TEST(WeekTime, hasEightSlotsWithABreakAtNoon)
{
    QStringList starts;
    for (int slot = 0; slot < slotCount; ++slot) {
        starts.append(timeText(slotStart(slot)));
    }
    const QStringList expected = {"8h00",  "9h30",  "11h00", "13h00",
                                  "14h30", "16h00", "17h30", "19h00"};
    EXPECT_EQ(starts, expected);
}

TEST(WeekTime, namesSlotsByDayAndNumber)
{
    EXPECT_EQ(slotKey(0, 0), "Lundi1");
    EXPECT_EQ(slotKey(5, 7), "Samedi8");
}

TEST(WeekTime, lengthensNothingOverNoonOrTheLastSlot)
{
    EXPECT_TRUE(fitsHalfDay(1, 180));
    EXPECT_FALSE(fitsHalfDay(2, 135));
    EXPECT_TRUE(fitsHalfDay(2, 90));
    EXPECT_TRUE(fitsHalfDay(6, 180));
    EXPECT_FALSE(fitsHalfDay(7, 135));
}

TEST(WeekMask, meetsOnlyWhatOverlapsInTheSameWeek)
{
    const WeekMask long135(0, 0, 0, 135, everyWeek); // Monday, slot 1 and half of slot 2
    EXPECT_TRUE(long135.meets(WeekMask(0, 1, 0, 45, everyWeek)));
    EXPECT_FALSE(long135.meets(WeekMask(0, 1, 1, 45, everyWeek)));
    EXPECT_FALSE(long135.meets(WeekMask(1, 0, 0, 90, everyWeek)));
    const WeekMask inWeekA(2, 3, 0, 90, weekA);
    EXPECT_FALSE(inWeekA.meets(WeekMask(2, 3, 0, 90, weekB)));
    EXPECT_TRUE(inWeekA.meets(WeekMask(2, 3, 1, 45, everyWeek)));
}

TEST(WeekMask, countsSlotsTakenInPart)
{
    WeekMask mask(0, 0, 0, 135, weekA);
    mask.add(WeekMask(5, 7, 0, 45, weekB));
    EXPECT_EQ(mask.slotsOnDay(0), 2);
    EXPECT_EQ(mask.slotsOnDay(1), 0);
    EXPECT_EQ(mask.slotsOnDay(5), 1);
    EXPECT_EQ(mask.slotsInWeek(), 3);
}
