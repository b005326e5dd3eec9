#include "timetable/DaySlot.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace timetable;

namespace
{

DaySlot slotFrom(std::optional<MinuteOfDay> start, std::optional<MinuteOfDay> end)
{
    DaySlot slot;
    slot.start = start;
    slot.end = end;
    return slot;
}

} // namespace

TEST(ASlot, lastsFromItsStartToItsEnd)
{
    EXPECT_EQ(timeOf(slotFrom({{480}}, {{600}})), (TimeSpan{{480}, {120}}));
}

TEST(ASlot, lastsAsLongAsAUsualCourseWithoutAnEndBehindItsStart)
{
    EXPECT_EQ(timeOf(slotFrom({{480}}, {})), (TimeSpan{{480}, {90}}));
    EXPECT_EQ(timeOf(slotFrom({{480}}, {{480}})), (TimeSpan{{480}, {90}}));
    EXPECT_EQ(timeOf(slotFrom({{480}}, {{479}})), (TimeSpan{{480}, {90}}));
}

TEST(ASlot, withoutAStartIsAtNoTime)
{
    EXPECT_EQ(timeOf(slotFrom({}, {{600}})), std::nullopt);
}
