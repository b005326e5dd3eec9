#include "demo/WeekBook.h"

#include "demo/Samples.h"

#include <gtest/gtest.h>

using namespace demo;

namespace
{

const When mondayFirst{0, 0, 0, 90, everyWeek};

} // namespace

TEST(WeekBook, letsNoTwoMeetingsBeginInOneRoomAndSlot)
{
    const Faculty faculty(test::tinyOptions());
    WeekBook book(faculty);
    const When firstHalf{0, 0, 0, 45, everyWeek};
    const When secondHalf{0, 0, 1, 45, everyWeek};
    book.takeRoom(1, firstHalf);
    EXPECT_FALSE(book.roomFree(1, secondHalf));
    EXPECT_TRUE(book.roomFree(2, secondHalf));
    const When inWeekA{1, 0, 0, 90, weekA};
    const When inWeekB{1, 0, 0, 90, weekB};
    book.takeRoom(1, inWeekA);
    EXPECT_FALSE(book.roomFree(1, inWeekB));
}

TEST(WeekBook, letsAShortOneFollowInTheSlotThatALongOneReachesInto)
{
    const Faculty faculty(test::tinyOptions());
    WeekBook book(faculty);
    const When until10h15{0, 0, 0, 135, everyWeek};
    const When from10h15{0, 1, 1, 45, everyWeek};
    const When from9h30{0, 1, 0, 90, everyWeek};
    book.takeRoom(0, until10h15);
    EXPECT_TRUE(book.roomFree(0, from10h15));
    EXPECT_FALSE(book.roomFree(0, from9h30));
    EXPECT_EQ(from10h15.start(), 10 * 60 + 15);
}

TEST(WeekBook, keepsAClassInOnePlaceAndItsDayShort)
{
    const Faculty faculty(test::tinyOptions());
    WeekBook book(faculty);
    book.takeClass(0, mondayFirst);
    EXPECT_FALSE(book.classFree(0, mondayFirst));
    EXPECT_TRUE(book.classFree(1, mondayFirst));
    EXPECT_FALSE(book.classIdle(0, 0));
    EXPECT_TRUE(book.classIdle(0, 1));
    for (int slot = 1; slot < 6; ++slot) {
        book.takeClass(0, {0, slot, 0, 90, everyWeek});
    }
    const When seventh{0, 6, 0, 90, everyWeek};
    EXPECT_FALSE(book.classFree(0, seventh));
}

TEST(WeekBook, findsAnotherTeacherWhenThePreferredOneIsTaken)
{
    FacultyOptions options = test::tinyOptions();
    options.teachers = 10; // the first department has the teachers 0 and 8
    const Faculty faculty(options);
    WeekBook book(faculty);
    EXPECT_EQ(book.findTeacher(0, 1, mondayFirst), 8);
    book.takeTeacher(8, mondayFirst);
    EXPECT_EQ(book.findTeacher(0, 1, mondayFirst), 0);
    book.takeTeacher(0, mondayFirst);
    EXPECT_EQ(book.findTeacher(0, 1, mondayFirst), nobody);
}
