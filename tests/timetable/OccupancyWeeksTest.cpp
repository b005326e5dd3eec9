// Which rooms a row holds in which weeks.

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace test;
using namespace timetable;

namespace
{

constexpr TimeSpan kFirstSlot{{8 * 60}, {90}};

/// Rooms R1 to R6, Monday's first slot from 8h00 to 9h30, and a row that names all six rooms.
class WeeksOfARow : public testing::Test
{
protected:
    static Draft withNature(const QString& nature)
    {
        Draft draft;
        for (const QString name : {"R1", "R2", "R3", "R4", "R5", "R6"}) {
            draft.room(name);
        }
        draft.slot("Lundi1", "8h00", "9h30");
        draft.course({{column::kSeance, "Lundi1"},
                      {column::kNewNature, nature},
                      {column::kSalle, "R1"},
                      {column::kXSalle, "R2"},
                      {column::kYSalle, "R3"},
                      {column::kSalleB, "R4"},
                      {column::kXSalleB, "R5"},
                      {column::kYSalleB, "R6"}});
        return draft;
    }

    /// The weeks in which a room is held on Monday: "A", "B", "AB" or nothing.
    static QString weeksOf(const Occupancy& occupancy, const QString& name)
    {
        const RoomId room = roomNamed(occupancy.timetable(), name);
        QString weeks;
        for (const auto& [week, letter] : {std::pair(Week::A, 'A'), std::pair(Week::B, 'B')}) {
            if (!occupancy.holders(room, When::weekday(kMonday, week), kFirstSlot).empty()) {
                weeks += QChar::fromLatin1(letter);
            }
        }
        return weeks;
    }

    static QStringList weeksOfAll(const Occupancy& occupancy)
    {
        QStringList weeks;
        for (const QString name : {"R1", "R2", "R3", "R4", "R5", "R6"}) {
            weeks << weeksOf(occupancy, name);
        }
        return weeks;
    }
};

const QStringList kEveryWeek{"AB", "AB", "AB", "B", "B", "B"};

} // namespace

TEST_F(WeeksOfARow, areAllForTheRoomsOfAAndBForThoseOfB)
{
    EXPECT_EQ(weeksOfAll(withNature("00").occupancy()), kEveryWeek);
}

TEST_F(WeeksOfARow, areAForSalleAloneWhereTheRowAlternates)
{
    EXPECT_EQ(weeksOfAll(withNature("10/20").occupancy()),
              (QStringList{"A", "AB", "AB", "B", "B", "B"}));
}

TEST_F(WeeksOfARow, areAllForSalleWhateverElseTheNatureIs)
{
    for (const QString& nature : {QString("10/20 "), QString("1020"), QString(""), QString()}) {
        EXPECT_EQ(weeksOfAll(withNature(nature).occupancy()), kEveryWeek) << nature.toStdString();
    }
}

TEST_F(WeeksOfARow, countBothWhenNobodyAsksForOne)
{
    const Occupancy occupancy = withNature("10/20").occupancy();
    for (const QString name : {"R1", "R2", "R3", "R4", "R5", "R6"}) {
        const RoomId room = roomNamed(occupancy.timetable(), name);
        EXPECT_EQ(occupancy.holders(room, When::weekday(kMonday)).size(), 1U) << name.toStdString();
    }
}

TEST_F(WeeksOfARow, makeTwoHoldersOfTheTwoRoomsOfAnAlternatingRow)
{
    const Occupancy occupancy = withNature("10/20").occupancy();
    ASSERT_EQ(occupancy.holdings().size(), 5U);
    const Holder salle = occupancy.describe(occupancy.holdings()[0]);
    EXPECT_EQ(salle.part, Part::A);
    EXPECT_EQ(salle.rooms, QStringList{"R1"});
    EXPECT_EQ(salle.weeks, Week::A);
    const Holder ySalle = occupancy.describe(occupancy.holdings()[1]);
    EXPECT_EQ(ySalle.part, Part::A);
    EXPECT_EQ(ySalle.rooms, QStringList{"R3"});
    EXPECT_EQ(ySalle.weeks, Week::Every);
}

TEST_F(WeeksOfARow, makeOneHolderOfTheTwoRoomsOfAnyOtherRow)
{
    const Occupancy occupancy = withNature("00").occupancy();
    ASSERT_EQ(occupancy.holdings().size(), 4U);
    const Holder a = occupancy.describe(occupancy.holdings()[0]);
    EXPECT_EQ(a.rooms, (QStringList{"R1", "R3"}));
    EXPECT_EQ(a.weeks, Week::Every);
    const Holder b = occupancy.describe(occupancy.holdings()[2]);
    EXPECT_EQ(b.part, Part::B);
    EXPECT_EQ(b.rooms, (QStringList{"R4", "R6"}));
    EXPECT_EQ(b.weeks, Week::B);
}

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
