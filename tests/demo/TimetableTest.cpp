#include "demo/Courses.h"
#include "demo/Samples.h"

#include <algorithm>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <set>
#include <tuple>

using namespace demo;
using test::sample;

namespace
{

/// One occupied quarter of an hour in one of two weeks: day, quarter since midnight, week B.
using WeekQuarter = std::tuple<int, int, bool>;

std::vector<WeekQuarter> quartersOf(const Meeting& meeting, bool weekB)
{
    std::vector<WeekQuarter> quarters;
    for (int minute = meeting.start; minute < meeting.start + meeting.minutes; minute += 15) {
        quarters.emplace_back(meeting.day, minute / 15, weekB);
    }
    return quarters;
}

/// Whoever is somewhere in the meeting's week: by side, since both sides of an every-week meeting
/// are the same.
const MeetingSide& sideOf(const Meeting& meeting, bool weekB)
{
    return weekB && meeting.alternating ? meeting.b : meeting.a;
}

std::vector<int> roomsOf(const MeetingSide& side)
{
    std::vector<int> rooms;
    for (const int room : {side.room, side.secondRoom, side.thirdRoom}) {
        if (room != nobody) {
            rooms.push_back(room);
        }
    }
    return rooms;
}

std::vector<int> teachersOf(const MeetingSide& side)
{
    std::vector<int> teachers = side.teachers;
    teachers.insert(teachers.end(), side.secondTeachers.begin(), side.secondTeachers.end());
    return teachers;
}

/// What identifies a course: its classes share these.
using CourseKey = std::tuple<int, int, int>; // day, start, first room

CourseKey courseKey(const Meeting& meeting)
{
    return {meeting.day, meeting.start, meeting.a.room != nobody ? meeting.a.room : meeting.b.room};
}

/// Occupied percentage of the rooms' slots on the day, as the plan shows it.
int occupiedPercent(int day)
{
    std::set<std::tuple<int, int>> cells; // room, slot
    for (const Meeting& meeting : sample().table.meetings) {
        if (meeting.day != day) {
            continue;
        }
        for (const MeetingSide* side : {&meeting.a, &meeting.b}) {
            for (const int room : roomsOf(*side)) {
                for (int past = 0; past < meeting.minutes; past += 90) {
                    cells.emplace(room, meeting.slot + past / 90);
                }
            }
        }
    }
    return static_cast<int>(cells.size()) * 100 / (64 * slotCount);
}

int countMeetings(const std::function<bool(const Meeting&)>& matches)
{
    const std::vector<Meeting>& meetings = sample().table.meetings;
    return static_cast<int>(std::count_if(meetings.begin(), meetings.end(), matches));
}

} // namespace

TEST(Timetable, putsNoClassInTwoPlaces)
{
    for (const bool weekB : {false, true}) {
        std::map<std::pair<int, WeekQuarter>, int> taken;
        for (const Meeting& meeting : sample().table.meetings) {
            if (sideOf(meeting, weekB).room != nobody) {
                for (const WeekQuarter& quarter : quartersOf(meeting, weekB)) {
                    EXPECT_EQ(++taken[std::make_pair(meeting.studentClass, quarter)], 1);
                }
            }
        }
    }
}

TEST(Timetable, putsNoTwoCoursesIntoOneRoomAndNoTeacherIntoTwoCourses)
{
    for (const bool weekB : {false, true}) {
        std::map<std::pair<int, WeekQuarter>, CourseKey> rooms;
        std::map<std::pair<int, WeekQuarter>, CourseKey> teachers;
        for (const Meeting& meeting : sample().table.meetings) {
            const CourseKey key = courseKey(meeting);
            const MeetingSide& side = sideOf(meeting, weekB);
            for (const WeekQuarter& quarter : quartersOf(meeting, weekB)) {
                for (const int room : roomsOf(side)) {
                    EXPECT_EQ(rooms.try_emplace({room, quarter}, key).first->second, key);
                }
                for (const int teacher : teachersOf(side)) {
                    EXPECT_EQ(teachers.try_emplace({teacher, quarter}, key).first->second, key);
                }
            }
        }
    }
}

TEST(Timetable, beginsOneCoursePerRoomAndSlotInWhateverWeek)
{
    std::map<std::tuple<int, int, int>, CourseKey> cells; // room, day, slot
    for (const Meeting& meeting : sample().table.meetings) {
        for (const MeetingSide* side : {&meeting.a, &meeting.b}) {
            for (const int room : roomsOf(*side)) {
                const auto cell =
                    cells.try_emplace({room, meeting.day, meeting.slot}, courseKey(meeting));
                EXPECT_EQ(cell.first->second, courseKey(meeting));
            }
        }
    }
}

TEST(Timetable, sharesARoomOnlyInCommonCourses)
{
    int shared = 0;
    for (const Course& course : weeklyCourses(sample().table)) {
        shared += course.size() > 1 ? 1 : 0;
        for (const Meeting& meeting : course) {
            EXPECT_EQ(meeting.common, course.size() > 1);
            EXPECT_EQ(meeting.a.teachers, course.front().a.teachers);
            EXPECT_EQ(meeting.a.subject, course.front().a.subject);
            EXPECT_GE(meeting.studentClass, course.front().studentClass);
        }
    }
    EXPECT_GT(shared, 100);
}

TEST(Timetable, fillsThePlanAsAFacultyDoes)
{
    for (int day = 0; day < 4; ++day) {
        EXPECT_GE(occupiedPercent(day), 58);
        EXPECT_LE(occupiedPercent(day), 75);
    }
    EXPECT_GE(occupiedPercent(4), 50);
    EXPECT_GE(occupiedPercent(5), 10);
    EXPECT_LE(occupiedPercent(5), 35);
}

TEST(Timetable, startsOnTheClockAndLastsFourKindsOfTime)
{
    std::set<int> lengths;
    for (const Meeting& meeting : sample().table.meetings) {
        lengths.insert(meeting.minutes);
        const int offset = meeting.start - slotStart(meeting.slot);
        EXPECT_TRUE(offset == 0 || (offset == 45 && meeting.minutes == 45));
        EXPECT_TRUE(fitsHalfDay(meeting.slot, offset + meeting.minutes));
    }
    EXPECT_EQ(lengths, (std::set<int>{45, 90, 135, 180}));
}

TEST(Timetable, hasEveryKindOfAlternationAndSplit)
{
    const auto isSplit = [](const MeetingSide& side) { return side.secondRoom != nobody; };
    EXPECT_GE(countMeetings([&](const Meeting& m) { return isSplit(m.a); }), 10);
    EXPECT_GE(countMeetings([&](const Meeting& m) { return isSplit(m.b); }), 3);
    EXPECT_GE(countMeetings([](const Meeting& m) { return m.a.thirdRoom != nobody; }), 1);
    EXPECT_GE(countMeetings([](const Meeting& m) { return m.alternating; }), 80);
    EXPECT_GE(countMeetings([](const Meeting& m) { return m.alternating && m.a.room == nobody; }),
              5);
    EXPECT_GE(countMeetings([](const Meeting& m) { return m.alternating && m.b.room == nobody; }),
              5);
    EXPECT_GE(countMeetings([](const Meeting& m) {
                  return m.alternating && m.a.room != nobody && m.a.room == m.b.room;
              }),
              20);
    EXPECT_GE(countMeetings([](const Meeting& m) { return m.a.teachers.size() == 3; }), 5);
}

TEST(Timetable, givesOnlyAlternatingMeetingsASecondSide)
{
    EXPECT_EQ(countMeetings([](const Meeting& m) {
                  return !m.alternating && (m.b.room != nobody || m.a.room == nobody);
              }),
              0);
}

TEST(Timetable, overfillsAFewRoomsOnly)
{
    const Faculty& faculty = sample().faculty;
    int overfull = 0;
    int courses = 0;
    for (const Course& course : weeklyCourses(sample().table)) {
        int size = 0;
        for (const Meeting& meeting : course) {
            size += faculty.studentClass(meeting.studentClass).size();
        }
        ++courses;
        overfull += size > faculty.room(course.front().a.room).places ? 1 : 0;
    }
    EXPECT_GE(overfull, courses / 100);
    EXPECT_LE(overfull, courses / 12);
}

TEST(Timetable, holdsPracticalWorkWhereItsEquipmentIs)
{
    const Faculty& faculty = sample().faculty;
    for (const Meeting& meeting : sample().table.meetings) {
        if (meeting.a.room == nobody) {
            continue;
        }
        const Room& room = faculty.room(meeting.a.room);
        const Lab needed = faculty.subject(meeting.a.subject).lab;
        EXPECT_TRUE(room.lab == Lab::None || room.lab == needed);
        EXPECT_TRUE(room.kind != RoomKind::Amphi || meeting.type == type::lecture);
        EXPECT_TRUE(meeting.type != type::practical || room.kind == RoomKind::Practical);
    }
}

TEST(Timetable, isMadeForTheSmallestFaculty)
{
    FacultyOptions options = test::tinyOptions();
    for (const SizeOption& size : sizeOptions()) {
        options.*size.value = size.least;
    }
    const Faculty faculty(options);
    const Timetable table = makeTimetable(faculty, faculty.periods.front());
    EXPECT_LE(table.meetings.size(), 48U); // no more than one class has slots
}
