#include "shell/HallChoices.h"

#include "support/RuntimeMatchers.h"

#include <gtest/gtest.h>

using shell::CommandLine;

namespace
{

const QDate kTuesday(2026, 11, 24);
const QDate kWeekA(2026, 11, 16); // the Monday of the week before
const CommandLine kNothingSaid;

} // namespace

TEST(TheChoicesOfAHall, areTheDayItsMakeUpsAndItsWeek)
{
    const CommandLine line = shell::hallChoices(kNothingSaid, kTuesday, kWeekA);
    EXPECT_EQ(line.date, kTuesday);
    EXPECT_TRUE(line.makeup);
    EXPECT_EQ(line.week, CommandLine::Week::B);
    EXPECT_EQ(shell::hallChoices(kNothingSaid, kTuesday.addDays(7), kWeekA).week,
              CommandLine::Week::A);
    EXPECT_EQ(shell::hallChoices(kNothingSaid, kTuesday, {}).week, std::nullopt);
    CommandLine said;
    said.week = CommandLine::Week::All;
    EXPECT_EQ(shell::hallChoices(said, kTuesday, kWeekA).week, CommandLine::Week::All);
}

TEST(TheChoicesOfAHallsPage, areAllRoomsOfToday)
{
    const CommandLine line = shell::hallPageChoices(kNothingSaid, kTuesday, kWeekA);
    EXPECT_TRUE(line.everyRoom);
    EXPECT_TRUE(line.allPages);
    EXPECT_TRUE(line.makeup);
    EXPECT_EQ(line.date, kTuesday);
    EXPECT_EQ(line.week, CommandLine::Week::B);
}

TEST(TheChoicesOfAHallsPage, areTheDayThatTheLineNames)
{
    CommandLine said;
    said.date = kTuesday.addDays(7);
    const CommandLine onDate = shell::hallPageChoices(said, kTuesday, kWeekA);
    EXPECT_EQ(onDate.date, kTuesday.addDays(7));
    EXPECT_EQ(onDate.week, CommandLine::Week::A);
    CommandLine ofDay;
    ofDay.day = 3;
    const CommandLine onDay = shell::hallPageChoices(ofDay, kTuesday, kWeekA);
    EXPECT_EQ(onDay.day, 3);
    EXPECT_EQ(onDay.date, std::nullopt);
    EXPECT_EQ(onDay.week, std::nullopt); // a day of the week is of both
    EXPECT_TRUE(onDay.makeup);
    EXPECT_TRUE(onDay.everyRoom);
}

TEST(TheChoicesOfAHallsPage, areThePageThatTheLineNames)
{
    CommandLine said;
    said.page = 2;
    EXPECT_FALSE(shell::hallPageChoices(said, kTuesday, kWeekA).allPages);
    said.allPages = true;
    EXPECT_TRUE(shell::hallPageChoices(said, kTuesday, kWeekA).allPages);
}

TEST(TheChoicesOfAHall, hideWhoWasAbsent)
{
    std::vector<plan::PlanPage> pages(1);
    plan::PlanBox box;
    box.classAbsent = true;
    box.studentAbsent = true;
    box.absentToolTip = "L1";
    plan::PlanRow row;
    row.boxes = {box};
    pages[0].content.rows = {row};
    shell::hideAbsences(pages);
    const plan::PlanBox& hidden = pages[0].content.rows[0].boxes[0];
    EXPECT_FALSE(hidden.classAbsent);
    EXPECT_FALSE(hidden.studentAbsent);
    EXPECT_TRUE(hidden.absentToolTip.isEmpty());
}
