#include "answers/FreeRooms.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>
#include <optional>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

constexpr TimeSpan kHalfPastNine{{570}, {90}}; // to 11h00

/// A day of four slots from 8h00 to 14h00, and rooms of 30 places.
class Rooms : public testing::Test
{
protected:
    Rooms()
    {
        draft.period(QDate(2026, 9, 7), QDate(2026, 12, 18));
        draft.slot("Lundi1", "8h00", "9h30").slot("Lundi2", "9h30", "11h00");
        draft.slot("Lundi3", "11h00", "12h30").slot("Lundi4", "12h30", "14h00");
    }
    void course(const QString& room, const QString& key, const QString& start = "",
                const QString& minutes = "90", const QString& nature = "00")
    {
        draft.course({{column::kSeance, key},
                      {column::kSalle, room},
                      {column::kDebut, start.isEmpty() ? QString() : start},
                      {column::kDuree, minutes},
                      {column::kNewNature, nature}});
    }
    /// The names of the free rooms with their stretches, as "R1 480-570".
    QStringList free(const std::vector<When>& days, const TimeSpan& span = kHalfPastNine,
                     int places = 0, const RoomFilter& filter = {})
    {
        if (!occupancy) {
            occupancy = draft.occupancy();
        }
        answer = freeRooms(*occupancy, {days, span, places, filter});
        QStringList names;
        for (const FreeRoom& room : answer.rooms) {
            names << QString("%1 %2-%3")
                         .arg(occupancy->timetable().room(room.room).name)
                         .arg(room.stretch.start.value)
                         .arg(room.stretch.end().value);
        }
        return names;
    }

    Draft draft;
    std::optional<Occupancy> occupancy; ///< once it is asked for
    FreeRooms answer;
};

const When kOnMonday = When::weekday(timetable::kMonday);

} // namespace

TEST_F(Rooms, areFreeFromTheOneBeforeToTheNext)
{
    draft.room("R1").room("R2").room("R3").room("R4");
    course("R1", "Lundi1");
    course("R2", "Lundi3");
    course("R3", "Lundi2");
    course("R4", "Lundi1", "8h00", "91"); // one minute too long
    EXPECT_EQ(free({kOnMonday}), QStringList({"R1 570-840", "R2 480-660"}));
    ASSERT_EQ(answer.taken.size(), 2U);
    EXPECT_EQ(answer.taken[0], (HeldRoom{RoomId(2), {HoldingId(2)}}));
    EXPECT_EQ(answer.taken[1], (HeldRoom{RoomId(3), {HoldingId(3)}}));
}

TEST_F(Rooms, comeWithJustEnoughPlacesFirst)
{
    draft.room("R1", 100).room("R2", 40).room("R3", 39).room("R4", 40);
    course("R3", "Lundi2");
    EXPECT_EQ(free({kOnMonday}, kHalfPastNine, 40),
              QStringList({"R2 480-840", "R4 480-840", "R1 480-840"}));
    EXPECT_TRUE(answer.taken.empty()); // R3 is too small to be told of
}

TEST_F(Rooms, areUnknownWhereNobodyKnowsWhenTheyAreHeld)
{
    draft.room("R1").room("R2");
    course("R1", "Lundi9"); // neither a start nor such a slot
    course("R1", "Lundi2");
    EXPECT_EQ(free({kOnMonday}), QStringList({"R2 480-840"}));
    EXPECT_TRUE(answer.taken.empty());
    ASSERT_EQ(answer.unknown.size(), 1U);
    EXPECT_EQ(answer.unknown[0], (HeldRoom{RoomId(0), {HoldingId(0)}}));
    EXPECT_EQ(free({When::weekday(1)}), QStringList({"R1 480-840", "R2 480-840"}));
}

TEST_F(Rooms, areFreeInTheWeekThatIsAskedFor)
{
    draft.room("R1");
    course("R1", "Lundi2", "", "90", "10/20"); // week A
    EXPECT_EQ(free({kOnMonday}), QStringList());
    EXPECT_EQ(free({When::weekday(0, Week::A)}), QStringList());
    EXPECT_EQ(free({When::weekday(0, Week::B)}), QStringList({"R1 480-840"}));
}

TEST_F(Rooms, areHeldByMakeUpsOnTheirDateAlone)
{
    draft.room("R1");
    draft.makeUp({{column::kSeance, "Mardi2"},
                  {column::kSalle, "R1"},
                  {column::kDebut, "10h00"},
                  {column::kDateX, "2026-11-16"}});
    EXPECT_EQ(free({kOnMonday}), QStringList({"R1 480-840"}));
    EXPECT_EQ(free({When::date(QDate(2026, 11, 16))}), QStringList());
    EXPECT_EQ(free({When::date(QDate(2026, 11, 23))}), QStringList({"R1 480-840"}));
    // On several days running, free on all of them.
    EXPECT_EQ(free({When::date(QDate(2026, 11, 9)), When::date(QDate(2026, 11, 16))}),
              QStringList());
    EXPECT_EQ(
        free({When::date(QDate(2026, 11, 9)), When::date(QDate(2026, 11, 16))}, {{690}, {30}}),
        QStringList({"R1 690-840"})); // from 11h30 on
}

TEST_F(Rooms, areFreeAroundATimeOutsideTheSlots)
{
    draft.room("R1");
    course("R1", "Lundi4");
    EXPECT_EQ(free({kOnMonday}, {{1080}, {60}}), QStringList({"R1 840-1140"})); // 18h00 to 19h00
    EXPECT_EQ(free({kOnMonday}, {{420}, {30}}), QStringList({"R1 420-750"}));   // 7h00 to 7h30
}

TEST_F(Rooms, meetAllThatIsAskedOfThem)
{
    Room inZone{"R1", 1, "INFO", 30};
    EXPECT_TRUE(RoomFilter().holds(inZone));
    EXPECT_TRUE((RoomFilter{1, "INFO"}.holds(inZone)));
    EXPECT_FALSE((RoomFilter{2, "INFO"}.holds(inZone)));
    EXPECT_FALSE((RoomFilter{1, "MATH"}.holds(inZone)));
    inZone.department.reset();
    EXPECT_FALSE((RoomFilter{1, "INFO"}.holds(inZone)));
}
