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
