#include "app/hall/HallSchedule.h"

#include <gtest/gtest.h>

using app::HallMoment;
using app::HallPast;
using app::HallSchedule;

namespace
{

const QDate kWednesday(2025, 3, 19);
const QDate kThursday(2025, 3, 20);
const QDate kWeekend(2025, 3, 23);

QDateTime at(QDate day, int hour, int minute, int second = 0)
{
    return {day, QTime(hour, minute, second)};
}

/// A page every 20 seconds, a reading every minute, begun on Wednesday at 10h00.
HallSchedule schedule()
{
    return {shell::DisplayRequest(), at(kWednesday, 10, 0)};
}

int pageAt(int minute, int second, int pages)
{
    return schedule().at(at(kWednesday, 10, minute, second), kWednesday, pages).page;
}

} // namespace

TEST(HallSchedule, turnsThePagesRoundAndRound)
{
    EXPECT_EQ(pageAt(0, 0, 3), 0);
    EXPECT_EQ(pageAt(0, 19, 3), 0);
    EXPECT_EQ(pageAt(0, 20, 3), 1);
    EXPECT_EQ(pageAt(0, 40, 3), 2);
    EXPECT_EQ(pageAt(0, 59, 3), 2);
    EXPECT_EQ(pageAt(1, 0, 3), 0);
    EXPECT_EQ(pageAt(2, 25, 3), 1); // 145 seconds: the eighth turn
}

TEST(HallSchedule, turnsThemAsSlowlyAsItIsAsked)
{
    const HallSchedule slow({90, 60}, at(kWednesday, 10, 0));
    EXPECT_EQ(slow.at(at(kWednesday, 10, 1, 29), kWednesday, 2).page, 0);
    EXPECT_EQ(slow.at(at(kWednesday, 10, 1, 30), kWednesday, 2).page, 1);
    EXPECT_EQ(slow.at(at(kWednesday, 10, 3, 0), kWednesday, 2).page, 0);
}

TEST(HallSchedule, staysOnTheFirstPageWhereThereIsNoOther)
{
    EXPECT_EQ(pageAt(0, 20, 1), 0);
    EXPECT_EQ(pageAt(0, 20, 0), 0);
}

TEST(HallSchedule, turnsOnThroughMidnight)
{
    const HallSchedule late(shell::DisplayRequest(), at(kWednesday, 23, 59, 50));
    EXPECT_EQ(late.at(at(kThursday, 0, 0, 9), kThursday, 2).page, 0);
    EXPECT_EQ(late.at(at(kThursday, 0, 0, 10), kThursday, 2).page, 1);
}

TEST(HallSchedule, hasAPageAlsoWhenTheClockIsPutBack)
{
    // 20 seconds before the beginning the last page was due.
    EXPECT_EQ(schedule().at(at(kWednesday, 9, 59, 40), kWednesday, 3).page, 2);
    EXPECT_EQ(schedule().at(at(kWednesday, 9, 59, 39), kWednesday, 3).page, 1);
}

TEST(HallSchedule, drawsTheLineWhereTheClockStands)
{
    const HallMoment moment = schedule().at(at(kWednesday, 14, 5, 59), kWednesday, 1);
    EXPECT_EQ(moment.today, kWednesday);
    EXPECT_EQ(moment.minute, 845);
    EXPECT_EQ(moment.past, HallPast::UntilClock);
    EXPECT_EQ(moment.line, 845);
    EXPECT_EQ(schedule().at(at(kWednesday, 0, 0), kWednesday, 1).line, 0);
}

TEST(HallSchedule, palesADayThatHasEndedAndDrawsNoLineThere)
{
    // A second after midnight the plan of Wednesday is still shown.
    const HallMoment moment = schedule().at(at(kThursday, 0, 0, 1), kWednesday, 1);
    EXPECT_EQ(moment.today, kThursday);
    EXPECT_EQ(moment.minute, 0);
    EXPECT_EQ(moment.past, HallPast::All);
    EXPECT_EQ(moment.line, std::nullopt);
}

TEST(HallSchedule, palesNothingOfADayThatIsStillToCome)
{
    const HallMoment moment = schedule().at(at(kWednesday, 12, 0), kThursday, 1);
    EXPECT_EQ(moment.past, HallPast::None);
    EXPECT_EQ(moment.line, std::nullopt);
}

TEST(HallSchedule, palesNothingWithoutAPlan)
{
    const HallMoment moment = schedule().at(at(kWednesday, 12, 0), QDate(), 0);
    EXPECT_EQ(moment.past, HallPast::None);
    EXPECT_EQ(moment.line, std::nullopt);
    EXPECT_EQ(moment.minute, 720);
}

TEST(HallSchedule, goesOnAsEverOnASunday)
{
    const HallMoment moment = schedule().at(at(kWeekend, 9, 30), kWeekend, 2);
    EXPECT_EQ(moment.today, kWeekend);
    EXPECT_EQ(moment.past, HallPast::UntilClock);
    EXPECT_EQ(moment.line, 570);
}

TEST(HallSchedule, readsAtOnceAndThenEveryMinute)
{
    const QDateTime asked = at(kWednesday, 10, 0);
    EXPECT_TRUE(schedule().isReadingDue(asked, QDateTime()));
    EXPECT_FALSE(schedule().isReadingDue(asked, asked));
    EXPECT_FALSE(schedule().isReadingDue(at(kWednesday, 10, 0, 59), asked));
    EXPECT_TRUE(schedule().isReadingDue(at(kWednesday, 10, 1), asked));
}

TEST(HallSchedule, readsTheNewDayAtMidnight)
{
    EXPECT_FALSE(schedule().isReadingDue(at(kWednesday, 23, 59, 59), at(kWednesday, 23, 59, 30)));
    EXPECT_TRUE(schedule().isReadingDue(at(kThursday, 0, 0), at(kWednesday, 23, 59, 30)));
}

TEST(HallSchedule, readsWhenTheClockIsPutBack)
{
    EXPECT_TRUE(schedule().isReadingDue(at(kWednesday, 10, 0), at(kWednesday, 10, 0, 1)));
}
