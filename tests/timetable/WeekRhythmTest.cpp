#include "timetable/WeekRhythm.h"

#include <gtest/gtest.h>

using namespace timetable;

TEST(WeekRhythm, takesWeeksByTurns)
{
    const WeekRhythm rhythm(QDate(2026, 11, 16)); // a Monday
    EXPECT_TRUE(rhythm.isKnown());
    EXPECT_EQ(rhythm.weekOf(QDate(2026, 11, 16)), Week::A);
    EXPECT_EQ(rhythm.weekOf(QDate(2026, 11, 22)), Week::A); // its Sunday
    EXPECT_EQ(rhythm.weekOf(QDate(2026, 11, 23)), Week::B);
    EXPECT_EQ(rhythm.weekOf(QDate(2026, 11, 30)), Week::A);
}

TEST(WeekRhythm, reachesBackAsWell)
{
    const WeekRhythm rhythm(QDate(2026, 11, 16));
    EXPECT_EQ(rhythm.weekOf(QDate(2026, 11, 15)), Week::B); // the Sunday before
    EXPECT_EQ(rhythm.weekOf(QDate(2026, 11, 2)), Week::A);
    EXPECT_EQ(rhythm.weekOf(QDate(2025, 12, 31)), Week::A); // 46 weeks back, to 29 December
    EXPECT_EQ(rhythm.weekOf(QDate(2025, 12, 28)), Week::B);
}

TEST(WeekRhythm, mayBeToldByAnyDayOfTheWeek)
{
    EXPECT_EQ(WeekRhythm(QDate(2026, 11, 19)), WeekRhythm(QDate(2026, 11, 16)));
}

TEST(WeekRhythm, knowsNothingWithoutAWeekA)
{
    EXPECT_FALSE(WeekRhythm().isKnown());
    EXPECT_FALSE(WeekRhythm(QDate()).isKnown());
    EXPECT_EQ(WeekRhythm().weekOf(QDate(2026, 11, 16)), Week::Every);
    EXPECT_EQ(WeekRhythm(QDate(2026, 11, 16)).weekOf(QDate()), Week::Every);
}
