#include "answers/RoomFilter.h"

#include "timetable/Draft.h"

#include <gtest/gtest.h>

using namespace answers;
using test::Draft;
using timetable::Room;

namespace
{

Room room(std::optional<int> zone, std::optional<QString> department)
{
    return {QStringLiteral("A1"), zone, std::move(department), 30};
}

} // namespace

TEST(RoomFilter, holdsEveryRoomWhereNothingIsAsked)
{
    EXPECT_TRUE(RoomFilter().holds(room({}, {})));
    EXPECT_TRUE(RoomFilter().holds(room(2, "INFO")));
}

TEST(RoomFilter, holdsARoomThatMeetsBoth)
{
    const RoomFilter filter{1, "INFO"};
    EXPECT_TRUE(filter.holds(room(1, "INFO")));
    EXPECT_FALSE(filter.holds(room(1, "MATH")));
    EXPECT_FALSE(filter.holds(room(2, "INFO")));
    EXPECT_FALSE(filter.holds(room({}, "INFO")));
    EXPECT_FALSE(filter.holds(room(1, {})));
}

TEST(RoomFilter, holdsTheOtherSpellingsOfADepartment)
{
    RoomFilter filter{{}, "INFO"};
    EXPECT_FALSE(filter.holds(room(1, "info")));
    filter.spellings = {"INFO", "info"};
    EXPECT_TRUE(filter.holds(room(1, "info")));
    EXPECT_FALSE(filter.holds(room(1, "Info")));
    EXPECT_FALSE(filter.holds(room(1, {})));
}

TEST(RoomFilter, findsTheSpellingsThatTheDatabaseTakesForEqual)
{
    Draft draft;
    for (const QString department : {"INFO", "MATH", "info"}) {
        draft.builder().addRoom(room(1, department));
    }
    draft.builder().addRoom(room(1, {}));
    const timetable::Timetable timetable = draft.build(Draft::ignoringCase);
    EXPECT_EQ(departmentSpellings(timetable, "info"), (std::vector<QString>{"INFO", "info"}));
    EXPECT_EQ(departmentSpellings(timetable, "MATH"), std::vector<QString>{"MATH"});
    EXPECT_TRUE(departmentSpellings(timetable, "Info").empty());
}
