// The small values without a source file of their own.

#include "timetable/Draft.h"
#include "timetable/Id.h"
#include "timetable/TimeSpan.h"
#include "timetable/Week.h"

#include <gtest/gtest.h>

using namespace timetable;

TEST(Id, standsForNothingUnlessToldOtherwise)
{
    EXPECT_TRUE(RoomId().isNone());
    EXPECT_TRUE(RoomId(-1).isNone());
    EXPECT_FALSE(RoomId(0).isNone());
    EXPECT_EQ(RoomId(3).index(), 3);
    EXPECT_EQ(RoomId(), RoomId(-1));
    EXPECT_NE(RoomId(), RoomId(0));
}

TEST(Week, isSharedByEveryWeekAndByTheSame)
{
    EXPECT_TRUE(shareWeek(Week::A, Week::A));
    EXPECT_FALSE(shareWeek(Week::A, Week::B));
    EXPECT_FALSE(shareWeek(Week::B, Week::A));
    EXPECT_TRUE(shareWeek(Week::Every, Week::B));
    EXPECT_TRUE(shareWeek(Week::B, Week::Every));
}

TEST(TimeSpan, endsWhereItsLengthSaysSo)
{
    EXPECT_EQ((TimeSpan{{510}, {90}}.end()), MinuteOfDay{600});
    EXPECT_EQ(between({510}, {600}), (TimeSpan{{510}, {90}}));
}

TEST(TimeSpan, meetsAnotherThatSharesAMinute)
{
    const TimeSpan morning = between({480}, {570});
    EXPECT_TRUE(morning.meets(between({569}, {600})));
    EXPECT_FALSE(morning.meets(between({570}, {600})));
    EXPECT_TRUE(morning.meets(between({400}, {481})));
    EXPECT_FALSE(morning.meets(between({400}, {480})));
    EXPECT_TRUE(morning.meets(between({500}, {510})));
    EXPECT_TRUE(between({500}, {510}).meets(morning));
    EXPECT_FALSE(morning.meets(between({500}, {500})));
}

TEST(Days, countFromMonday)
{
    EXPECT_EQ(dayOf(QDate(2026, 11, 16)), 0);
    EXPECT_EQ(dayOf(QDate(2026, 11, 21)), 5);
    EXPECT_EQ(dayOf(QDate(2026, 11, 22)), kSunday);
}
