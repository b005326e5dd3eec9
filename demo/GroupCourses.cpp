#include "demo/GroupCourses.h"

#include "demo/Classes.h"

#include <algorithm>
#include <numeric>

namespace demo
{
namespace
{

// Chances, in percent.
constexpr int alternatingChance = 16;
constexpr int splitChance = 12;
constexpr int thirdRoomChance = 25;
constexpr int tooLargeChance = 5;

std::size_t at(int index)
{
    return static_cast<std::size_t>(index);
}

When inWeeks(When when, unsigned weeks)
{
    when.weeks = weeks;
    return when;
}

} // namespace

GroupCourses::GroupCourses(const Faculty& faculty, const Period& period, Draw& draw)
    : m_faculty(faculty), m_semester(period.semester), m_queue(faculty.classes.size())
{
    std::iota(m_queue.begin(), m_queue.end(), 0);
    draw.shuffle(m_queue);
    for (int cohort = 0; cohort < departmentCount * levelCount; ++cohort) {
        const int department = cohort / levelCount;
        const int level = cohort % levelCount;
        m_modules.at(at(cohort)) = faculty.curriculum.modules(department, level, m_semester);
        for (int lab = 0; lab < labCount; ++lab) {
            m_practicals.push_back(
                faculty.curriculum.practicals(department, level, static_cast<Lab>(lab)));
        }
    }
}

const std::vector<int>& GroupCourses::practicals(const StudentClass& studentClass, Lab lab) const
{
    return m_practicals.at(at(cohortOf(studentClass) * labCount + static_cast<int>(lab)));
}

/// A laboratory is open to whom the equipment serves; other rooms of a department to its classes.
bool GroupCourses::eligible(const Room& room, int studentClass) const
{
    const StudentClass& asking = m_faculty.studentClass(studentClass);
    if (room.kind == RoomKind::Practical) {
        return !practicals(asking, room.lab).empty();
    }
    return room.department == nobody || room.department == asking.department;
}

int GroupCourses::findClass(const Room& room, const When& when, const WeekBook& book,
                            bool tooLarge) const
{
    for (const int index : m_queue) {
        const int size = m_faculty.studentClass(index).size();
        const bool fits =
            tooLarge ? size > room.places && size <= room.places * 3 / 2 : size <= room.places;
        if (fits && eligible(room, index) && book.classFree(index, when)) {
            return index;
        }
    }
    return nobody;
}

int GroupCourses::chooseClass(const Room& room, const When& when, const WeekBook& book,
                              Draw& draw) const
{
    const int large = draw.percent(tooLargeChance) ? findClass(room, when, book, true) : nobody;
    return large != nobody ? large : findClass(room, when, book, false);
}

int GroupCourses::chooseType(const Room& room, const When& when, Draw& draw) const
{
    const int drawn = draw.below(100);
    if (room.kind == RoomKind::Practical) {
        const int work = room.lab == Lab::Workshop ? type::workshop : type::practical;
        return drawn < 8 ? type::project : work;
    }
    if (room.kind == RoomKind::Seminar) {
        return drawn < 45 ? type::seminar : drawn < 75 ? type::tutorial : type::coaching;
    }
    if (when.minutes < slotMinutes) {
        return type::coaching;
    }
    return drawn < 74   ? type::tutorial
           : drawn < 84 ? type::integrated
           : drawn < 93 ? type::language
                        : type::project;
}

int GroupCourses::chooseSubject(const Room& room, const Meeting& meeting, Draw& draw) const
{
    const StudentClass& studentClass = m_faculty.studentClass(meeting.studentClass);
    const std::vector<int>& modules = m_modules.at(at(cohortOf(studentClass)));
    if (room.kind == RoomKind::Practical) {
        return draw.pick(practicals(studentClass, room.lab));
    }
    return meeting.type == type::language ? modules.back() : draw.pick(modules);
}

/// A free room like this one that the class may use, preferably one that holds it.
int GroupCourses::anotherRoom(int room, const Meeting& meeting, const When& when,
                              const WeekBook& book, Draw& draw) const
{
    const Room& like = m_faculty.room(room);
    const int count = static_cast<int>(m_faculty.rooms.size());
    const int first = draw.below(count);
    int found = nobody;
    for (int step = 0; step < count; ++step) {
        const int index = (first + step) % count;
        const Room& other = m_faculty.room(index);
        if (index != room && other.kind == like.kind && other.lab == like.lab &&
            eligible(other, meeting.studentClass) && book.roomFree(index, when)) {
            found = index;
            if (other.places >= m_faculty.studentClass(meeting.studentClass).size()) {
                break;
            }
        }
    }
    return found;
}

/// Up to `count` free teachers of the subject, taken at once so that none is found twice.
std::vector<int> GroupCourses::hireTeachers(int subject, int studentClass, int count,
                                            const When& when, WeekBook& book) const
{
    std::vector<int> hired;
    while (static_cast<int>(hired.size()) < count) {
        const int teacher = book.findTeacher(m_faculty.subject(subject).department,
                                             subject * 5 + studentClass, when);
        if (teacher == nobody) {
            break;
        }
        book.takeTeacher(teacher, when);
        hired.push_back(teacher);
    }
    return hired;
}

bool GroupCourses::place(int room, const When& when, Timetable& table, Draw& draw)
{
    Meeting meeting;
    meeting.day = when.day;
    meeting.slot = when.slot;
    meeting.start = when.start();
    meeting.minutes = when.minutes;
    meeting.studentClass = chooseClass(m_faculty.room(room), when, table.book, draw);
    if (meeting.studentClass == nobody) {
        return false;
    }
    meeting.type = chooseType(m_faculty.room(room), when, draw);
    const bool alternating =
        when.half == 0 && when.minutes >= slotMinutes && draw.percent(alternatingChance);
    const bool placed = alternating ? placeAlternating(meeting, room, when, table.book, draw)
                                    : placeEveryWeek(meeting, room, when, table.book, draw);
    if (placed) {
        table.meetings.push_back(meeting);
        const auto served = std::find(m_queue.begin(), m_queue.end(), meeting.studentClass);
        std::rotate(served, served + 1, m_queue.end());
    }
    return placed;
}

bool GroupCourses::placeEveryWeek(Meeting& meeting, int room, const When& when, WeekBook& book,
                                  Draw& draw) const
{
    const bool practical = m_faculty.room(room).kind == RoomKind::Practical;
    const int assistants = practical && draw.percent(30) ? draw.between(1, 2) : 0;
    meeting.a.room = room;
    meeting.a.subject = chooseSubject(m_faculty.room(room), meeting, draw);
    meeting.a.teachers =
        hireTeachers(meeting.a.subject, meeting.studentClass, 1 + assistants, when, book);
    if (meeting.a.teachers.empty()) {
        return false;
    }
    book.takeRoom(room, when);
    book.takeClass(meeting.studentClass, when);
    if (practical && draw.percent(splitChance)) {
        splitOver(meeting.a, meeting, when, book, draw);
    }
    return true;
}

/// Sends a part of the class to a second room, and now and then another part to a third one.
void GroupCourses::splitOver(MeetingSide& side, const Meeting& meeting, const When& when,
                             WeekBook& book, Draw& draw) const
{
    const int second = anotherRoom(side.room, meeting, when, book, draw);
    if (second == nobody) {
        return;
    }
    const int subject = chooseSubject(m_faculty.room(second), meeting, draw);
    std::vector<int> teachers = hireTeachers(subject, meeting.studentClass, 1, when, book);
    if (teachers.empty()) {
        return;
    }
    side.secondRoom = second;
    side.secondSubject = subject;
    side.secondTeachers = std::move(teachers);
    book.takeRoom(second, when);
    const int third =
        draw.percent(thirdRoomChance) ? anotherRoom(side.room, meeting, when, book, draw) : nobody;
    if (third != nobody) {
        side.thirdRoom = third;
        book.takeRoom(third, when);
    }
}

/// The class has something else in week B, or only comes every other week.
bool GroupCourses::placeAlternating(Meeting& meeting, int room, const When& when, WeekBook& book,
                                    Draw& draw) const
{
    constexpr int onlyBChance = 15;
    constexpr int onlyAChance = 10;
    const int drawn = draw.below(100);
    const When weekAOnly = inWeeks(when, weekA);
    meeting.alternating = true;
    if (drawn < onlyBChance) {
        return placeWeekB(meeting, room, when, book, draw);
    }
    meeting.a.room = room;
    meeting.a.subject = chooseSubject(m_faculty.room(room), meeting, draw);
    meeting.a.teachers = hireTeachers(meeting.a.subject, meeting.studentClass, 1, weekAOnly, book);
    if (meeting.a.teachers.empty()) {
        return false;
    }
    const bool onlyA = drawn < onlyBChance + onlyAChance;
    const int other = anotherRoom(room, meeting, inWeeks(when, weekB), book, draw);
    const bool move = other != nobody && draw.percent(45);
    book.takeRoom(room, weekAOnly);
    book.takeClass(meeting.studentClass, weekAOnly);
    if (!onlyA) {
        placeWeekB(meeting, move ? other : room, when, book, draw);
    }
    return true;
}

bool GroupCourses::placeWeekB(Meeting& meeting, int room, const When& when, WeekBook& book,
                              Draw& draw) const
{
    constexpr int splitBChance = 35;
    const When weekBOnly = inWeeks(when, weekB);
    const int subject = chooseSubject(m_faculty.room(room), meeting, draw);
    std::vector<int> teachers = hireTeachers(subject, meeting.studentClass, 1, weekBOnly, book);
    if (teachers.empty()) {
        return false;
    }
    meeting.typeB = meeting.type;
    meeting.b.room = room;
    meeting.b.subject = subject;
    meeting.b.teachers = std::move(teachers);
    book.takeRoom(room, weekBOnly);
    book.takeClass(meeting.studentClass, weekBOnly);
    if (m_faculty.room(room).kind == RoomKind::Practical && draw.percent(splitBChance)) {
        splitOver(meeting.b, meeting, weekBOnly, book, draw);
    }
    return true;
}

} // namespace demo
