#include "answers/WeekGrid.h"

#include "answers/ClashDraft.h"

#include <gtest/gtest.h>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

/// A school with the room R1, its slots from 8h00 to 11h00.
class TheGrid : public testing::Test
{
protected:
    TheGrid() { school.draft().room("R1"); }

    WeekGrid grid(const AskedWeek& week = {})
    {
        return weekGrid(school.occupancy(), Subject(RoomId(0)), week,
                        weekOf(school.occupancy(), RoomId(0), week));
    }

    ClashDraft school;
};

} // namespace

TEST_F(TheGrid, isEmptyWhereNothingIsHeld)
{
    const WeekGrid empty = grid();
    EXPECT_TRUE(empty.isEmpty());
    EXPECT_EQ(empty.axis, between({480}, {660})); // its slots
    EXPECT_EQ(empty.days[0].title, "Lundi");
}

TEST_F(TheGrid, hasOneAxisForAllDays)
{
    school.course({"Lundi1", "R1", "L1", {}, {}, "7h00"});
    school.course({"Mardi1", "R1", "L1", {}, {}, "18h00", "60"});
    const WeekGrid week = grid();
    EXPECT_EQ(week.axis, between({420}, {1140}));
    EXPECT_EQ(week.boxes.size(), 2);
    EXPECT_FALSE(week.isEmpty());
}

TEST_F(TheGrid, knowsWhichBoxesAreOffTheSlots)
{
    school.course({"Lundi1", "R1", "L1"});
    school.course({"Mardi1", "R1", "L1", {}, {}, "8h00", "180"}); // both slots
    school.course({"Mercredi1", "R1", "L1", {}, {}, "8h00", "60"});
    school.course({"Jeudi1", "R1", "L1", {}, {}, "8h30", "60"});
    const WeekGrid week = grid();
    EXPECT_FALSE(week.boxes.at(0).isOffSlots);
    EXPECT_FALSE(week.boxes.at(1).isOffSlots);
    EXPECT_TRUE(week.boxes.at(2).isOffSlots);
    EXPECT_TRUE(week.boxes.at(3).isOffSlots);
}

TEST_F(TheGrid, tellsOnceWhatHasNoKnownTime)
{
    ClashRow row{"Lundi9", "R1", "L1"};
    row.roomB = "R1"; // two holdings of one row
    school.course(row);
    school.course({"Jeudi9", "R1", "L2"});
    const WeekGrid week = grid();
    EXPECT_TRUE(week.boxes.empty());
    ASSERT_EQ(week.unplaced.size(), 2);
    EXPECT_EQ(week.unplaced[0].holding, HoldingId(0));
    EXPECT_EQ(week.unplaced[0].words, "Lundi : L1 (Lundi9) : ni heure de début, ni séance de ce "
                                      "nom dans la journée");
    EXPECT_EQ(week.unplaced[1].day, 3);
    EXPECT_FALSE(week.isEmpty());
}

TEST_F(TheGrid, hasAnExamInTheColumnOfItsDate)
{
    school.draft().examWeeks(QDate(2027, 1, 7), {}, {}); // a Thursday
    ClashRow row{"Mardi1", "R1", "L1"};                  // the second day of that week
    row.week = "1";
    school.exam(row);
    const WeekGrid week = grid({Week::Every, QDate(2027, 1, 4)});
    ASSERT_EQ(week.boxes.size(), 1);
    EXPECT_EQ(week.days.at(static_cast<std::size_t>(week.boxes[0].day)).title, "Vendredi 08/01");
}

TEST_F(TheGrid, ofADateHasItsDates)
{
    EXPECT_EQ(grid({Week::Every, QDate(2026, 11, 26)}).days[1].title, "Mardi 24/11");
}
