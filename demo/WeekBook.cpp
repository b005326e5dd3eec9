#include "demo/WeekBook.h"

namespace demo
{
namespace
{

// How many slots a day and a week may hold.
constexpr int classDay = 6;
constexpr int classWeek = 30;
constexpr int teacherDay = 5;
constexpr int teacherWeek = 18;

std::size_t at(int index)
{
    return static_cast<std::size_t>(index);
}

int neededSlots(const When& when)
{
    return (when.half * (slotMinutes / 2) + when.minutes + slotMinutes - 1) / slotMinutes;
}

WeekMask wholeSlot(const When& when)
{
    return {when.day, when.slot, 0, slotMinutes, everyWeek};
}

bool hasTime(const WeekMask& taken, const When& when, int dayLimit, int weekLimit)
{
    return !taken.meets(when.mask()) &&
           taken.slotsOnDay(when.day) + neededSlots(when) <= dayLimit &&
           taken.slotsInWeek() + neededSlots(when) <= weekLimit;
}

} // namespace

WeekBook::WeekBook(const Faculty& faculty)
    : m_rooms(faculty.rooms.size()), m_beginnings(faculty.rooms.size()),
      m_classes(faculty.classes.size()), m_teachers(faculty.teachers.size()),
      m_teachersByDepartment(departmentCount + 1)
{
    for (int index = 0; index < static_cast<int>(faculty.teachers.size()); ++index) {
        m_teachersByDepartment.at(at(faculty.teacher(index).department)).push_back(index);
    }
    for (std::vector<int>& teachers : m_teachersByDepartment) {
        if (teachers.empty()) {
            teachers.push_back(0); // too few for every department: the first one helps out
        }
    }
}

bool WeekBook::roomFree(int room, const When& when) const
{
    return !m_rooms.at(at(room)).meets(when.mask()) &&
           !m_beginnings.at(at(room)).meets(wholeSlot(when));
}

void WeekBook::takeRoom(int room, const When& when)
{
    m_rooms.at(at(room)).add(when.mask());
    m_beginnings.at(at(room)).add(wholeSlot(when));
}

bool WeekBook::classFree(int studentClass, const When& when) const
{
    return hasTime(m_classes.at(at(studentClass)), when, classDay, classWeek);
}

void WeekBook::takeClass(int studentClass, const When& when)
{
    m_classes.at(at(studentClass)).add(when.mask());
}

bool WeekBook::classIdle(int studentClass, int day) const
{
    return m_classes.at(at(studentClass)).slotsOnDay(day) == 0;
}

bool WeekBook::teacherFree(int teacher, const When& when) const
{
    return hasTime(m_teachers.at(at(teacher)), when, teacherDay, teacherWeek);
}

int WeekBook::findTeacher(int department, int preferred, const When& when) const
{
    const std::vector<int>& teachers = m_teachersByDepartment.at(at(department));
    for (std::size_t step = 0; step < teachers.size(); ++step) {
        const int teacher = teachers.at((at(preferred) + step) % teachers.size());
        if (teacherFree(teacher, when)) {
            return teacher;
        }
    }
    return nobody;
}

void WeekBook::takeTeacher(int teacher, const When& when)
{
    m_teachers.at(at(teacher)).add(when.mask());
}

} // namespace demo
