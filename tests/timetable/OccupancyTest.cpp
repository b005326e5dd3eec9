// Who holds which rooms. Weeks, days and times have files of their own.

#include "timetable/Draft.h"

#include <gtest/gtest.h>
#include <memory>

using namespace test;
using namespace timetable;

TEST(Occupancy, tellsWhoHoldsTheRoomWithThePeopleOfThePart)
{
    Draft draft;
    draft.room("R1").room("R2").slot("Mardi2", "9h30", "11h00");
    draft.course({{column::kSeance, "Mardi2"},
                  {column::kNewNature, "10/20"},
                  {column::kClasse, "L1 INFO A"},
                  {column::kDebut, "9h45"},
                  {column::kDuree, "60"},
                  {column::kSalle, "R1"},
                  {column::kEnseignant1, "Durand"},
                  {column::kEnseignant3, "Roux"},
                  {column::kMatiere, "Algèbre"},
                  {column::kXSalleB, "R2"},
                  {column::kXEnseignant2B, "Petit"},
                  {column::kXMatiereB, "Chimie"}});
    const Occupancy occupancy = draft.occupancy();
    Holder a;
    a.kind = MeetingKind::Course;
    a.part = Part::A;
    a.rooms = {"R1"};
    a.className = "L1 INFO A";
    a.teachers = {"Durand", "Roux"};
    a.subject = "Algèbre";
    a.day = 1;
    a.slot = 2;
    a.time = TimeSpan{{9 * 60 + 45}, {60}};
    a.weeks = Week::A;
    Holder b = a;
    b.part = Part::SecondB;
    b.rooms = {"R2"};
    b.teachers = {"Petit"};
    b.subject = "Chimie";
    b.weeks = Week::B;
    ASSERT_EQ(occupancy.holdings().size(), 2U);
    EXPECT_EQ(occupancy.describe(occupancy.holdings()[0]), a);
    EXPECT_EQ(occupancy.describe(occupancy.holdings()[1]), b);
}

TEST(Occupancy, namesARoomOnceThatOnePartNamesTwice)
{
    Draft draft;
    draft.room("R1").slot("Lundi1", "8h00", "9h30");
    draft.course({{column::kSeance, "Lundi1"}, {column::kSalle, "R1"}, {column::kYSalle, "R1"}});
    const Occupancy occupancy = draft.occupancy();
    const auto held = occupancy.holders(RoomId(0), When::weekday(kMonday));
    ASSERT_EQ(held.size(), 1U);
    EXPECT_EQ(occupancy.describe(occupancy.holding(held[0])).rooms, QStringList{"R1"});
}

TEST(Occupancy, hasTwoHoldersOfARoomThatAnAlternatingRowNamesTwice)
{
    Draft draft;
    draft.room("R1").slot("Lundi1", "8h00", "9h30");
    draft.course({{column::kSeance, "Lundi1"},
                  {column::kNewNature, "10/20"},
                  {column::kSalle, "R1"},
                  {column::kYSalle, "R1"}});
    const Occupancy occupancy = draft.occupancy();
    EXPECT_EQ(occupancy.holders(RoomId(0), When::weekday(kMonday, Week::A)).size(), 2U);
    EXPECT_EQ(occupancy.holders(RoomId(0), When::weekday(kMonday, Week::B)).size(), 1U);
}

TEST(Occupancy, hasAllEqualRoomsHeldByARowThatNamesThem)
{
    Draft draft;
    draft.room("A1").room("a1").room("B1").slot("Lundi1", "8h00", "9h30");
    draft.course({{column::kSeance, "Lundi1"}, {column::kSalle, "A1"}});
    const Occupancy occupancy(std::make_shared<const Timetable>(draft.build(Draft::ignoringCase)));
    EXPECT_EQ(occupancy.holders(RoomId(0), When::weekday(kMonday)).size(), 1U);
    EXPECT_EQ(occupancy.holders(RoomId(1), When::weekday(kMonday)).size(), 1U);
    EXPECT_EQ(occupancy.holders(RoomId(2), When::weekday(kMonday)).size(), 0U);
    EXPECT_EQ(occupancy.roomsOf(occupancy.holdings().front()),
              (std::vector<RoomId>{RoomId(0), RoomId(1)}));
}

TEST(Occupancy, countsEveryRowAndNotOnlyTheFirst)
{
    Draft draft;
    draft.room("R1").slot("Lundi1", "8h00", "9h30");
    for (const QString className : {"C1", "C2", "C3"}) {
        draft.course(
            {{column::kSeance, "Lundi1"}, {column::kSalle, "R1"}, {column::kClasse, className}});
    }
    const Occupancy occupancy = draft.occupancy();
    QStringList classes;
    for (const HoldingId id : occupancy.holders(RoomId(0), When::weekday(kMonday))) {
        classes << occupancy.describe(occupancy.holding(id)).className;
    }
    EXPECT_EQ(classes, (QStringList{"C1", "C2", "C3"}));
}

TEST(Occupancy, showsRoomsThatOnlyRowsName)
{
    Draft draft;
    draft.room("R1").slot("Lundi1", "8h00", "9h30");
    draft.course({{column::kSeance, "Lundi1"}, {column::kSalle, "Cave"}});
    draft.course({{column::kSeance, "Mardi1"}, {column::kXSalle, "Cave"}});
    const Occupancy occupancy = draft.occupancy();
    const RoomId cave = roomNamed(occupancy.timetable(), "Cave");
    ASSERT_EQ(cave, RoomId(1));
    EXPECT_FALSE(occupancy.timetable().isListed(cave));
    EXPECT_EQ(occupancy.everyHolder(cave).size(), 2U);
    EXPECT_EQ(occupancy.holders(cave, When::weekday(kMonday)).size(), 1U);
    EXPECT_TRUE(occupancy.everyHolder(RoomId(0)).empty());
}

TEST(Occupancy, leavesARowOutThatNamesNoRoom)
{
    Draft draft;
    draft.room("R1").slot("Lundi1", "8h00", "9h30");
    draft.course({{column::kSeance, "Lundi1"}, {column::kSalle, ""}, {column::kXSalle, "  "}});
    draft.course({{column::kSeance, "Lundi1"}, {column::kClasse, "C1"}});
    draft.course({{column::kSalle, ""}});
    const Occupancy occupancy = draft.occupancy();
    EXPECT_TRUE(occupancy.holdings().empty());
    EXPECT_TRUE(occupancy.unplaced().empty());
    EXPECT_TRUE(occupancy.timetable().unknownRooms().empty());
}
