#include "answers/RoomWeeks.h"

#include "answers/ClashDraft.h"

#include <gtest/gtest.h>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

/// A school with the rooms R1, of 30 places, and R2, without.
class TheRooms : public testing::Test
{
protected:
    TheRooms() { school.draft().room("R1").room("R2", 0); }

    RoomWeeks weeks(Week week = Week::Every, const RoomFilter& filter = {})
    {
        return roomWeeks(school.occupancy(), {week, {}}, weekOfAll(school.occupancy(), {week, {}}),
                         filter);
    }
    /// Each box of a row as "first line lane/lanes".
    static QStringList boxes(const RoomWeek& row)
    {
        QStringList told;
        for (const WeekBox& box : row.boxes) {
            told << QString("%1 %2/%3").arg(box.lines.front()).arg(box.lane).arg(box.lanes);
        }
        return told;
    }

    ClashDraft school;
};

} // namespace

TEST_F(TheRooms, eachHaveARow)
{
    school.course({"Lundi1", "R2", "L1"});
    const RoomWeeks all = weeks();
    ASSERT_EQ(all.rows.size(), 2);
    EXPECT_EQ(all.rows[0].name, "R1");
    EXPECT_EQ(all.rows[0].places, 30);
    EXPECT_TRUE(all.rows[0].boxes.empty());
    EXPECT_EQ(all.rows[1].room, RoomId(1));
    EXPECT_EQ(boxes(all.rows[1]), QStringList("L1 0/1"));
    EXPECT_FALSE(all.isEmpty());
}

TEST_F(TheRooms, areThoseThatTheFilterHolds)
{
    school.course({"Lundi1", "R1", "L1"});
    EXPECT_EQ(weeks(Week::Every, {1, {}}).rows.size(), 2); // all drafted rooms are in zone 1
    EXPECT_TRUE(weeks(Week::Every, {2, {}}).rows.empty());
}

TEST_F(TheRooms, haveNoRowUnlessTheRoomTableKnowsThem)
{
    school.course({"Lundi1", "R9", "L1"});
    const RoomWeeks all = weeks();
    EXPECT_EQ(all.rows.size(), 2);
    EXPECT_TRUE(all.isEmpty());
}

TEST_F(TheRooms, bothHaveWhatIsInTwo)
{
    ClashRow row{"Lundi1", "R1", "L1"};
    row.yRoom = "R2";
    school.course(row);
    const RoomWeeks all = weeks();
    EXPECT_EQ(all.rows[0].boxes[0].lines, QStringList({"L1", "R2"}));
    EXPECT_EQ(all.rows[1].boxes[0].lines, QStringList({"L1", "R1"}));
}

TEST_F(TheRooms, giveWeekAAHalfEvenAlone)
{
    ClashRow row{"Lundi1", "R1", "L1"};
    row.nature = "10/20";
    school.course(row);
    row.key = "Lundi2";
    std::swap(row.room, row.roomB);
    school.course(row);
    EXPECT_EQ(boxes(weeks().rows[0]), QStringList({"L1 0/2", "L1 1/2"}));
    EXPECT_EQ(boxes(weeks(Week::A).rows[0]), QStringList("L1 0/1"));
}

TEST_F(TheRooms, haveDaysWithAxesOfTheirOwn)
{
    school.course({"Mardi1", "R1", "L1", {}, {}, "18h00", "60"});
    const RoomWeeks all = weeks();
    EXPECT_EQ(all.days[0].axis, between({480}, {660}));
    EXPECT_EQ(all.days[1].axis, between({480}, {1140}));
}

TEST_F(TheRooms, tellTheDaysOfWhichNobodyKnows)
{
    school.course({"Jeudi9", "R2", "L1"});
    const RoomWeeks all = weeks();
    EXPECT_EQ(all.rows[1].unknown[3],
              "L1 (Jeudi9) : ni heure de début, ni séance de ce nom dans la journée");
    EXPECT_EQ(all.rows[1].unknown[2], QString());
    EXPECT_EQ(all.rows[0].unknown[3], QString());
    EXPECT_FALSE(all.isEmpty());
}
