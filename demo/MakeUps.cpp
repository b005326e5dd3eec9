#include "demo/MakeUps.h"

#include "demo/Draw.h"
#include "demo/SchoolYear.h"

#include <algorithm>
#include <array>
#include <tuple>

namespace demo
{
namespace
{

// Make-ups per day, in percent of the rooms, from the current week on.
constexpr std::array<int, 4> percentPerWeek = {24, 14, 8, 5};

std::vector<int> similarRooms(const Faculty& faculty, int room)
{
    const Room& like = faculty.room(room);
    std::vector<int> rooms;
    for (int index = 0; index < static_cast<int>(faculty.rooms.size()); ++index) {
        const Room& other = faculty.room(index);
        if (other.kind == like.kind && other.lab == like.lab &&
            other.department == like.department) {
            rooms.push_back(index);
        }
    }
    return rooms;
}

/// Takes the course's people and the room at that time, if all are free.
bool book(const Faculty& faculty, Course& course, int room, const When& when, WeekBook& week)
{
    const auto isFree = [&](const Meeting& meeting) {
        return week.classFree(meeting.studentClass, when);
    };
    const int teacher = course.front().a.teachers.front();
    if (!week.roomFree(room, when) || !std::all_of(course.begin(), course.end(), isFree) ||
        !week.teacherFree(teacher, when)) {
        return false;
    }
    int size = 0;
    for (const Meeting& meeting : course) {
        size += faculty.studentClass(meeting.studentClass).size();
    }
    if (size > faculty.room(room).places) {
        return false;
    }
    week.takeRoom(room, when);
    week.takeTeacher(teacher, when);
    for (Meeting& meeting : course) {
        week.takeClass(meeting.studentClass, when);
        meeting.day = when.day;
        meeting.slot = when.slot;
        meeting.start = when.start();
        meeting.a = {room, nobody, nobody, {teacher}, {}, meeting.a.subject, nobody};
    }
    return true;
}

/// One make-up on the day, or nothing when no attempt meets free rooms and people.
Course planOne(const Faculty& faculty, const std::vector<Course>& courses, int day, WeekBook& week,
               Draw& draw)
{
    constexpr int attempts = 60;
    for (int attempt = 0; attempt < attempts; ++attempt) {
        Course course = draw.pick(courses);
        const std::vector<int> rooms = similarRooms(faculty, course.front().a.room);
        const When when{day, draw.below(slotCount), 0, course.front().minutes, everyWeek};
        if (when.minutes <= slotMinutes && book(faculty, course, draw.pick(rooms), when, week)) {
            return course;
        }
    }
    return {};
}

bool isEarlier(const Meeting& left, const Meeting& right)
{
    return std::tie(left.date, left.slot, left.studentClass) <
           std::tie(right.date, right.slot, right.studentClass);
}

} // namespace

std::vector<Meeting> makeMakeUps(const Faculty& faculty, const Timetable& table)
{
    Draw draw(faculty.options.seed, Topic::MakeUps);
    const std::vector<Course> courses = weeklyCourses(table);
    std::vector<Meeting> makeUps;
    QDate monday = mondayOf(faculty.options.reference);
    for (const int percent : percentPerWeek) {
        WeekBook week = table.book;
        const int perDay = 1 + static_cast<int>(faculty.rooms.size()) * percent / 100;
        for (int day = 0; day < dayCount && !courses.empty(); ++day) {
            for (int count = 0; count < perDay; ++count) {
                for (Meeting& meeting : planOne(faculty, courses, day, week, draw)) {
                    meeting.date = monday.addDays(day);
                    makeUps.push_back(std::move(meeting));
                }
            }
        }
        monday = monday.addDays(7);
    }
    std::stable_sort(makeUps.begin(), makeUps.end(), isEarlier);
    return makeUps;
}

} // namespace demo
