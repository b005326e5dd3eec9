#include "answers/RoomUse.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

/// Two slots on each of the six days, twelve in all; L1 has 20 students, L2 has 25.
class TheUseOfRooms : public testing::Test
{
protected:
    TheUseOfRooms()
    {
        draft.slot("Lundi1", "8h00", "9h30").slot("Lundi2", "9h30", "11h00");
        draft.builder().sizes().addStudents(u"L1", 20);
        draft.builder().sizes().addStudents(u"L2", 25);
    }
    void add(const QString& key, const QString& room, const QString& className,
             const QString& start = {}, const QString& length = {})
    {
        draft.course({{column::kSeance, key},
                      {column::kSalle, room},
                      {column::kClasse, className},
                      {column::kDebut, start},
                      {column::kDuree, length}});
    }
    [[nodiscard]] RoomUse use(Week week = Week::A, const RoomFilter& filter = {})
    {
        return roomUse(draft.occupancy(), week, filter);
    }

    Draft draft;
};

} // namespace

TEST_F(TheUseOfRooms, countsTheSlotsAndSeatsOfEachRoom)
{
    draft.room("R1", 40).room("R2", 10);
    add("Lundi1", "R1", "L1");  // 20 of 40 seats
    add("Mardi2", "R1", "L2");  // 25 of 40
    add("Samedi1", "R2", "L1"); // 20 of 10: no more than 10
    const RoomUse found = use();
    ASSERT_EQ(found.rooms.size(), 2U);
    EXPECT_EQ(found.rooms[0], (UseOfRoom{RoomId(0), 40, 12, 2, 2.0 / 12, 45.0 / 480}));
    EXPECT_EQ(found.rooms[1], (UseOfRoom{RoomId(1), 10, 12, 1, 1.0 / 12, 10.0 / 120}));
    EXPECT_DOUBLE_EQ(found.share, 3.0 / 24);
    EXPECT_DOUBLE_EQ(found.seatsShare, 55.0 / 600);
    EXPECT_TRUE(found.areSeatsKnown);
}

TEST_F(TheUseOfRooms, countsTheRoomsOfEachSlot)
{
    draft.room("R1").room("R2").room("R3").room("R4");
    add("Lundi1", "R1", "L1");
    add("Lundi1", "R2", "L2");
    add("Mardi2", "R4", "L2");
    const RoomUse found = use();
    ASSERT_EQ(found.slots.size(), 12U);
    EXPECT_EQ(found.slots[0], (UseOfSlot{0, 1, 4, 2, 0.5}));
    EXPECT_EQ(found.slots[1], (UseOfSlot{0, 2, 4, 0, 0}));
    EXPECT_EQ(found.slots[3], (UseOfSlot{1, 2, 4, 1, 0.25}));
    EXPECT_EQ(found.slots[11], (UseOfSlot{5, 2, 4, 0, 0}));
}

TEST_F(TheUseOfRooms, takesTheMeanOfBothWeeks)
{
    draft.room("R1", 50);
    draft.course({{column::kSeance, "Lundi1"},
                  {column::kNewNature, "10/20"},
                  {column::kSalle, "R1"},
                  {column::kClasse, "L1"}});
    add("Lundi2", "R1", "L2");
    const Occupancy occupancy = draft.occupancy();
    const RoomUse a = roomUse(occupancy, Week::A, {});
    EXPECT_EQ(a.rooms[0], (UseOfRoom{RoomId(0), 50, 12, 2, 2.0 / 12, 45.0 / 600}));
    const RoomUse b = roomUse(occupancy, Week::B, {});
    EXPECT_EQ(b.rooms[0], (UseOfRoom{RoomId(0), 50, 12, 1, 1.0 / 12, 25.0 / 600}));
    const RoomUse both = roomUse(occupancy, Week::Every, {});
    EXPECT_EQ(both.rooms[0], (UseOfRoom{RoomId(0), 50, 12, 1.5, 1.5 / 12, 35.0 / 600}));
    EXPECT_EQ(both.slots[0], (UseOfSlot{0, 1, 1, 0.5, 0.5}));
    EXPECT_EQ(both.slots[1], (UseOfSlot{0, 2, 1, 1, 1}));
    EXPECT_DOUBLE_EQ(both.share, 1.5 / 12);
    EXPECT_DOUBLE_EQ(both.seatsShare, 35.0 / 600);
}

TEST_F(TheUseOfRooms, hasEverySlotHeldThatACourseReachesInto)
{
    draft.room("R1").room("R2").room("R3");
    add("Lundi1", "R1", "L1", "9h00", "31"); // one minute of the second slot
    add("Lundi1", "R2", "L1", "9h00", "30"); // none
    add("Lundi2", "R3", "L1", "8h00", "60"); // at its own time, whatever its key
    const RoomUse found = use();
    EXPECT_EQ(found.rooms[0].held, 2);
    EXPECT_EQ(found.rooms[1].held, 1);
    EXPECT_EQ(found.rooms[2].held, 1);
    EXPECT_EQ(found.slots[0].held, 3);
    EXPECT_EQ(found.slots[1].held, 1);
}

TEST_F(TheUseOfRooms, countsASlotOfSeveralCoursesOnceAndEachOfTheirClassesOnce)
{
    draft.room("R1", 100);
    add("Lundi1", "R1", "L1");
    add("Lundi1", "R1", "L2");
    add("Lundi1", "R1", "L1", "9h00", "30");
    add("Lundi1", "R1", QString());
    EXPECT_EQ(use().rooms[0], (UseOfRoom{RoomId(0), 100, 12, 1, 1.0 / 12, 45.0 / 1200}));
}

TEST_F(TheUseOfRooms, leavesOutMakeUpsExamsSundaysAndWhatHasNoTime)
{
    draft.room("R1").period(QDate(2026, 9, 7), QDate(2026, 12, 18));
    draft.examWeeks(QDate(2027, 1, 4), QDate(2027, 1, 11), QDate(2026, 10, 5));
    draft.makeUp({{column::kSeance, "Lundi1"},
                  {column::kSalle, "R1"},
                  {column::kClasse, "L1"},
                  {column::kDateX, "2026-11-16"}});
    draft.exam({{column::kSeance, "Lundi1"},
                {column::kSalle, "R1"},
                {column::kClasse, "L1"},
                {column::kSemaine, "1"}});
    add("Dimanche1", "R1", "L1");
    add("Lundi7", "R1", "L1"); // no such slot, and no start
    const RoomUse found = use();
    EXPECT_EQ(found.rooms[0].held, 0);
    EXPECT_EQ(found.share, 0);
}

TEST_F(TheUseOfRooms, isThatOfTheRoomsAskedAbout)
{
    draft.builder().addRoom({"R1", 1, std::nullopt, 30});
    draft.builder().addRoom({"R2", 2, QStringLiteral("Physique"), 30});
    draft.builder().addRoom({"R3", 2, QStringLiteral("Chimie"), 30});
    add("Lundi1", "R2", "L1");
    add("Lundi1", "R3", "L1");
    add("Lundi1", "Annexe", "L1"); // of which the room table knows nothing
    const RoomUse found = use(Week::A, {2, QStringLiteral("Physique")});
    ASSERT_EQ(found.rooms.size(), 1U);
    EXPECT_EQ(found.rooms[0].room, RoomId(1));
    EXPECT_EQ(found.slots[0], (UseOfSlot{0, 1, 1, 1, 1}));
    EXPECT_DOUBLE_EQ(found.share, 1.0 / 12);
    EXPECT_DOUBLE_EQ(found.seatsShare, 20.0 / 360);
}

TEST_F(TheUseOfRooms, hasADayOfItsOwnSlots)
{
    draft.room("R1").slot("Samedi1", "8h00", "12h00");
    add("Samedi1", "R1", "L1", "11h00");
    const RoomUse found = use();
    EXPECT_EQ(found.rooms[0].slots, 11); // five days of two, one of one
    EXPECT_EQ(found.slots.back(), (UseOfSlot{5, 1, 1, 1, 1}));
}

TEST_F(TheUseOfRooms, leavesOutSlotsWithoutAStartAndEndsOthersAfterTheUsualTime)
{
    draft.room("R1").slot("Mardi1", "matin", "9h30").slot("Mardi2", "10h00", "");
    add("Mardi2", "R1", "L1", "11h29"); // the slot's last minute
    const RoomUse found = use();
    EXPECT_EQ(found.rooms[0].slots, 11);
    EXPECT_EQ(found.slots[2], (UseOfSlot{1, 2, 1, 1, 1}));
}

TEST_F(TheUseOfRooms, endsASlotAfterTheUsualTimeWhoseEndIsBeforeItsStart)
{
    draft.room("R1").slot("Mardi1", "10h00", "8h00");
    add("Mardi1", "R1", "L1", "11h30"); // the first minute after it
    EXPECT_EQ(use().rooms[0].held, 0);
}

TEST_F(TheUseOfRooms, hasNoSeatsWherePlacesAreNotTold)
{
    draft.room("R1", 0).room("R2", 40);
    add("Lundi1", "R1", "L1");
    const RoomUse found = use();
    EXPECT_DOUBLE_EQ(found.rooms[0].share, 1.0 / 12);
    EXPECT_EQ(found.rooms[0].seatsShare, 0);
    EXPECT_EQ(found.seatsShare, 0);
    EXPECT_TRUE(found.areSeatsKnown);
}

TEST_F(TheUseOfRooms, saysThatTheStudentsCannotBeRead)
{
    draft.room("R1", 40);
    draft.builder().sizes().leaveStudentsUnknown();
    add("Lundi1", "R1", "L1");
    const RoomUse found = use();
    EXPECT_FALSE(found.areSeatsKnown);
    EXPECT_EQ(found.rooms[0].held, 1);
}

TEST(TheUseOfNoRooms, isNothing)
{
    Draft draft;
    const RoomUse found = roomUse(draft.occupancy(), Week::Every, {});
    EXPECT_TRUE(found.rooms.empty());
    EXPECT_TRUE(found.slots.empty());
    EXPECT_EQ(found.share, 0);
    EXPECT_EQ(found.seatsShare, 0);
}

TEST(TheUseOfRoomsWithoutSlots, isNothingToShare)
{
    Draft draft;
    draft.room("R1");
    const RoomUse found = roomUse(draft.occupancy(), Week::Every, {});
    EXPECT_EQ(found.rooms.at(0), (UseOfRoom{RoomId(0), 30, 0, 0, 0, 0}));
    EXPECT_EQ(found.share, 0);
}
