#pragma once

#include "demo/Faculty.h"
#include "demo/WeekTime.h"

namespace demo
{

/// When a séance takes place.
struct When {
    int day = 0;
    int slot = 0;
    int half = 0; ///< 1 when it begins in the middle of the slot
    int minutes = slotMinutes;
    unsigned weeks = everyWeek;

    [[nodiscard]] WeekMask mask() const { return {day, slot, half, minutes, weeks}; }
    [[nodiscard]] int start() const { return slotStart(slot) + half * (slotMinutes / 2); }
};

/// Who is where in one week of the timetable, so that nobody is in two places.
class WeekBook
{
public:
    explicit WeekBook(const Faculty& faculty);

    /// A room also counts as taken when another séance begins in the same slot, in whatever half
    /// or week: the plan shows one séance per room and slot.
    [[nodiscard]] bool roomFree(int room, const When& when) const;
    void takeRoom(int room, const When& when);

    /// Not elsewhere, and this one does not make the day or the week too long.
    [[nodiscard]] bool classFree(int studentClass, const When& when) const;
    void takeClass(int studentClass, const When& when);
    /// Has nothing at all that day.
    [[nodiscard]] bool classIdle(int studentClass, int day) const;

    /// A teacher of the department, searched from its number `preferred` on, so that a course that
    /// asks with the same number mostly gets the same one. `nobody` when none has time.
    [[nodiscard]] int findTeacher(int department, int preferred, const When& when) const;
    [[nodiscard]] bool teacherFree(int teacher, const When& when) const;
    void takeTeacher(int teacher, const When& when);

private:
    std::vector<WeekMask> m_rooms;
    std::vector<WeekMask> m_beginnings; // the slots in which a séance of the room begins
    std::vector<WeekMask> m_classes;
    std::vector<WeekMask> m_teachers;
    std::vector<std::vector<int>> m_teachersByDepartment;
};

} // namespace demo
