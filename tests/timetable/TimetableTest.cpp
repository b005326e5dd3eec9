#include "timetable/Timetable.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace test;
using namespace timetable;

TEST(Timetable, hasMondaysSlotsOnDaysWithoutTheirOwn)
{
    Draft draft;
    draft.slot("Lundi1", "8h00", "9h30").slot("Lundi2", "9h30", "11h00");
    draft.slot("Jeudi2", "10h00", "12h00");
    const timetable::Timetable timetable = draft.build();
    EXPECT_EQ(timetable.slotsOf(0).size(), 2U);
    EXPECT_EQ(timetable.slotsOf(1).size(), 2U);
    EXPECT_EQ(timetable.slotsOf(kSunday).size(), 2U);
    ASSERT_EQ(timetable.slotsOf(3).size(), 1U);
    EXPECT_EQ(timetable.slotsOf(3)[0].start, MinuteOfDay{600});
}

TEST(Timetable, findsASlotByItsNumber)
{
    Draft draft;
    draft.slot("Lundi1", "8h00", "9h30").slot("Jeudi2", "10h00", "12h00");
    const timetable::Timetable timetable = draft.build();
    ASSERT_NE(timetable.slot(4, 1), nullptr);
    EXPECT_EQ(timetable.slot(4, 1)->start, MinuteOfDay{480});
    EXPECT_EQ(timetable.slot(3, 1), nullptr);
    EXPECT_EQ(timetable.slot(0, 2), nullptr);
}

TEST(Timetable, hasNoSlotsWhereMondayHasNone)
{
    EXPECT_TRUE(Draft().build().slotsOf(2).empty());
}

TEST(Timetable, tellsListedRoomsFromUnknownOnes)
{
    Draft draft;
    draft.room("R1", 40).room("R2");
    draft.course({{column::kSalle, "Cave"}});
    const timetable::Timetable timetable = draft.build();
    ASSERT_EQ(timetable.rooms().size(), 2U);
    EXPECT_EQ(timetable.rooms()[0].places, 40);
    ASSERT_EQ(timetable.unknownRooms().size(), 1U);
    EXPECT_EQ(timetable.unknownRooms()[0], (Room{"Cave", std::nullopt, std::nullopt, 0}));
    EXPECT_EQ(timetable.roomCount(), 3);
    EXPECT_TRUE(timetable.isListed(RoomId(1)));
    EXPECT_FALSE(timetable.isListed(RoomId(2)));
}
