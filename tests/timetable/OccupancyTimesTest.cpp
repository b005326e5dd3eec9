// From when to when a row holds its rooms.

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace test;
using namespace timetable;

namespace
{

constexpr MinuteOfDay clock(int hours, int minutes)
{
    return {hours * 60 + minutes};
}

/// Room R1; slots on Monday, 8h00 to 9h30 and 9h30 to 11h00, and on Wednesday, 8h15 to 9h45.
class TimesOfARow : public testing::Test
{
protected:
    TimesOfARow()
    {
        m_draft.room("R1")
            .slot("Lundi1", "8h00", "9h30")
            .slot("Lundi2", "9h30", "11h00")
            .slot("Mercredi1", "8h15", "9h45");
    }

    /// A row that holds R1.
    void course(const QString& key, const QString& start, const QString& length)
    {
        m_draft.course({{column::kSeance, key},
                        {column::kSalle, "R1"},
                        {column::kDebut, start},
                        {column::kDuree, length}});
    }

    /// The time of the only row.
    [[nodiscard]] std::optional<TimeSpan> time()
    {
        const Occupancy occupancy = m_draft.occupancy();
        EXPECT_EQ(occupancy.holdings().size(), 1U);
        return occupancy.holdings().front().time;
    }

    Draft m_draft;
};

} // namespace

TEST_F(TimesOfARow, areItsOwnStartAndLength)
{
    course("Lundi1", "10h15", "45");
    EXPECT_EQ(time(), (TimeSpan{clock(10, 15), {45}}));
}

TEST_F(TimesOfARow, beginWithTheSlotWhereTheStartIsNull)
{
    course("Lundi2", QString(), "60");
    EXPECT_EQ(time(), (TimeSpan{clock(9, 30), {60}}));
}

TEST_F(TimesOfARow, beginWithTheSlotWhereTheStartIsNoTime)
{
    course("Lundi2", "vers midi", "60");
    EXPECT_EQ(time(), (TimeSpan{clock(9, 30), {60}}));
}

TEST_F(TimesOfARow, lastNinetyMinutesWhereTheLengthIsNullOrNone)
{
    for (const QString& length : {QString(), QString(""), QString("longue"), QString("0"),
                                  QString("-60"), QString("99999")}) {
        course("Lundi1", "8h00", length);
        EXPECT_EQ(time(), (TimeSpan{clock(8, 0), {90}})) << length.toStdString();
    }
}

TEST_F(TimesOfARow, areThoseOfTheDaysOwnSlotsWhereItHasSuch)
{
    course("Mercredi1", QString(), "90");
    EXPECT_EQ(time(), (TimeSpan{clock(8, 15), {90}}));
}

TEST_F(TimesOfARow, areThoseOfMondaysSlotsWhereTheDayHasNone)
{
    course("Mardi2", QString(), "90");
    EXPECT_EQ(time(), (TimeSpan{clock(9, 30), {90}}));
}

TEST_F(TimesOfARow, areUnknownWhereTheDaysOwnSlotsLackThatOne)
{
    course("Mercredi2", QString(), "90"); // Monday has a second slot, Wednesday has not
    EXPECT_EQ(time(), std::nullopt);
}

TEST_F(TimesOfARow, areItsOwnWhereThePlanDoesNotShowItsSlot)
{
    course("Lundi11", "18h00", "60");
    EXPECT_EQ(time(), (TimeSpan{clock(18, 0), {60}}));
}

TEST_F(TimesOfARow, areItsOwnWhereItsKeyHasADayAndNoSlot)
{
    course("Lundi", "18h00", "60");
    EXPECT_EQ(time(), (TimeSpan{clock(18, 0), {60}}));
}

TEST_F(TimesOfARow, makeTheRoomUnknownWhereThereIsNoSlotToBeginWith)
{
    course("Lundi11", QString(), "60");
    const Occupancy occupancy = m_draft.occupancy();
    EXPECT_TRUE(occupancy.holders(RoomId(0), When::weekday(kMonday)).empty());
    const auto unknown = occupancy.unknown(RoomId(0), When::weekday(kMonday));
    ASSERT_EQ(unknown.size(), 1U);
    EXPECT_EQ(occupancy.whyUnknown(occupancy.holding(unknown[0])), NoStart::NoSlot);
    EXPECT_TRUE(occupancy.unknown(RoomId(0), When::weekday(kMonday + 1)).empty());
}

TEST_F(TimesOfARow, makeTheRoomUnknownWhereTheSlotsStartIsNoTimeEither)
{
    m_draft.slot("Lundi3", "après", "12h30");
    course("Lundi3", "midi", "60");
    const Occupancy occupancy = m_draft.occupancy();
    const auto unknown = occupancy.unknown(RoomId(0), When::weekday(kMonday));
    ASSERT_EQ(unknown.size(), 1U);
    EXPECT_EQ(occupancy.whyUnknown(occupancy.holding(unknown[0])), NoStart::SlotNoTime);
}

TEST_F(TimesOfARow, areUnknownOnlyInTheWeeksOfTheRow)
{
    m_draft.course(
        {{column::kSeance, "Lundi9"}, {column::kNewNature, "10/20"}, {column::kSalle, "R1"}});
    const Occupancy occupancy = m_draft.occupancy();
    EXPECT_EQ(occupancy.unknown(RoomId(0), When::weekday(kMonday, Week::A)).size(), 1U);
    EXPECT_EQ(occupancy.unknown(RoomId(0), When::weekday(kMonday, Week::B)).size(), 0U);
    EXPECT_EQ(occupancy.unknown(RoomId(0), When::weekday(kMonday)).size(), 1U);
}

TEST_F(TimesOfARow, meetAStretchThatSharesAMinuteWithThem)
{
    course("Lundi1", "8h00", "90");
    const Occupancy occupancy = m_draft.occupancy();
    const auto isTaken = [&](MinuteOfDay start, MinuteOfDay end) {
        return !occupancy.holders(RoomId(0), When::weekday(kMonday), between(start, end)).empty();
    };
    EXPECT_TRUE(isTaken(clock(9, 29), clock(11, 0)));
    EXPECT_FALSE(isTaken(clock(9, 30), clock(11, 0)));
    EXPECT_TRUE(isTaken(clock(7, 0), clock(8, 1)));
    EXPECT_FALSE(isTaken(clock(7, 0), clock(8, 0)));
    EXPECT_TRUE(isTaken(clock(8, 30), clock(8, 31)));
    EXPECT_FALSE(isTaken(clock(8, 30), clock(8, 30)));
}

TEST_F(TimesOfARow, reachIntoLaterSlots)
{
    course("Lundi1", "8h00", "180");
    const Occupancy occupancy = m_draft.occupancy();
    const TimeSpan secondSlot = between(clock(9, 30), clock(11, 0));
    EXPECT_EQ(occupancy.holders(RoomId(0), When::weekday(kMonday), secondSlot).size(), 1U);
}

TEST_F(TimesOfARow, putTheHoldersOfADayInOrder)
{
    course("Lundi2", "9h30", "90");
    course("Lundi11", QString(), "90"); // at nobody knows what time
    course("Lundi1", "8h00", "90");
    course("Lundi1", "8h00", "60");
    const Occupancy occupancy = m_draft.occupancy();
    const auto held = occupancy.holders(RoomId(0), When::weekday(kMonday));
    ASSERT_EQ(held.size(), 3U);
    EXPECT_EQ(occupancy.holding(held[0]).time, (TimeSpan{clock(8, 0), {60}}));
    EXPECT_EQ(occupancy.holding(held[1]).time, (TimeSpan{clock(8, 0), {90}}));
    EXPECT_EQ(occupancy.holding(held[2]).time, (TimeSpan{clock(9, 30), {90}}));
}

TEST_F(TimesOfARow, goOnBehindMidnight)
{
    course("Lundi1", "23h30", "90");
    EXPECT_EQ(time()->end(), MinuteOfDay{25 * 60});
}
