#include "demo/MakeUps.h"

#include "demo/Absences.h"
#include "demo/Samples.h"
#include "demo/SchoolYear.h"
#include "support/RuntimeMatchers.h"

#include <gtest/gtest.h>
#include <map>
#include <set>
#include <tuple>

using namespace demo;
using test::sample;

namespace
{

const std::vector<Meeting>& makeUps()
{
    static const std::vector<Meeting> made = makeMakeUps(sample().faculty, sample().table);
    return made;
}

const std::vector<Absence>& absences()
{
    static const std::vector<Absence> made = makeAbsences(sample().faculty, sample().table);
    return made;
}

} // namespace

TEST(MakeUps, fallIntoThisWeekAndTheNextThree)
{
    std::set<QDate> mondays;
    for (const Meeting& meeting : makeUps()) {
        mondays.insert(mondayOf(meeting.date));
        EXPECT_EQ(meeting.date.dayOfWeek(), meeting.day + 1);
    }
    const std::set<QDate> expected = {QDate(2026, 11, 23), QDate(2026, 11, 30), QDate(2026, 12, 7),
                                      QDate(2026, 12, 14)};
    EXPECT_EQ(mondays, expected);
}

TEST(MakeUps, areInRoomsAndForPeopleThatTheTimetableLeavesFree)
{
    const WeekBook& book = sample().table.book;
    for (const Meeting& meeting : makeUps()) {
        const When when{meeting.day, meeting.slot, 0, meeting.minutes, everyWeek};
        EXPECT_TRUE(book.roomFree(meeting.a.room, when));
        EXPECT_TRUE(book.classFree(meeting.studentClass, when));
        EXPECT_TRUE(book.teacherFree(meeting.a.teachers.front(), when));
    }
}

TEST(MakeUps, areOneCoursePerRoomDateAndSlot)
{
    std::map<std::tuple<QDate, int, int>, int> subjects;
    for (const Meeting& meeting : makeUps()) {
        const auto cell =
            subjects.try_emplace({meeting.date, meeting.slot, meeting.a.room}, meeting.a.subject);
        EXPECT_TRUE(cell.second || meeting.common);
        EXPECT_EQ(cell.first->second, meeting.a.subject);
    }
}

TEST(Absences, areOnTheDaysOfThisWeekUpToTodayAndOfTheWeekBefore)
{
    std::set<QDate> classDates;
    std::set<QDate> studentDates;
    for (const Absence& absence : absences()) {
        (absence.ofStudents ? studentDates : classDates).insert(absence.date);
        EXPECT_EQ(absence.date.dayOfWeek(), absence.meeting.day + 1);
        EXPECT_FALSE(absence.meeting.alternating);
    }
    for (const std::set<QDate>& dates : {classDates, studentDates}) {
        EXPECT_EQ(*dates.begin(), QDate(2026, 11, 16));
        EXPECT_EQ(*dates.rbegin(), test::referenceDay());
        EXPECT_TRUE(dates.contains(QDate(2026, 11, 23))); // the day the program opens with
    }
}

TEST(Absences, includeTheFirstClassOfASharedCourse)
{
    std::set<std::tuple<QDate, bool, int, int, int>> shown;
    std::set<std::tuple<QDate, bool, int, int, int>> absent;
    const auto keyOf = [](const Absence& absence, const Meeting& meeting) {
        return std::make_tuple(absence.date, absence.ofStudents, meeting.start, meeting.a.room,
                               meeting.studentClass);
    };
    for (const Absence& absence : absences()) {
        absent.insert(keyOf(absence, absence.meeting));
        for (const Course& course : weeklyCourses(sample().table)) {
            const Meeting& first = course.front();
            if (first.day == absence.meeting.day && first.start == absence.meeting.start &&
                first.a.room == absence.meeting.a.room) {
                shown.insert(keyOf(absence, first));
            }
        }
    }
    for (const auto& first : shown) {
        EXPECT_TRUE(absent.contains(first));
    }
    EXPECT_GT(absent.size(), shown.size()); // some with all their classes
}
