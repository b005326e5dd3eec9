#pragma once

#include "demo/Draw.h"
#include "demo/Timetable.h"

#include <array>

namespace demo
{

/// Places what one class does by itself: tutorials, practical work, seminars. Some of it alternates
/// between two weeks, and some is split over two or three rooms.
class GroupCourses
{
public:
    GroupCourses(const Faculty& faculty, const Period& period, Draw& draw);

    /// Adds one meeting in the room, if there is a class and a teacher for it.
    bool place(int room, const When& when, Timetable& table, Draw& draw);

private:
    [[nodiscard]] const std::vector<int>& practicals(const StudentClass& studentClass,
                                                     Lab lab) const;
    [[nodiscard]] bool eligible(const Room& room, int studentClass) const;
    [[nodiscard]] int findClass(const Room& room, const When& when, const WeekBook& book,
                                bool tooLarge) const;
    [[nodiscard]] int chooseClass(const Room& room, const When& when, const WeekBook& book,
                                  Draw& draw) const;
    [[nodiscard]] int chooseType(const Room& room, const When& when, Draw& draw) const;
    [[nodiscard]] int chooseSubject(const Room& room, const Meeting& meeting, Draw& draw) const;
    [[nodiscard]] int anotherRoom(int room, const Meeting& meeting, const When& when,
                                  const WeekBook& book, Draw& draw) const;
    [[nodiscard]] std::vector<int> hireTeachers(int subject, int studentClass, int count,
                                                const When& when, WeekBook& book) const;

    bool placeEveryWeek(Meeting& meeting, int room, const When& when, WeekBook& book,
                        Draw& draw) const;
    void splitOver(MeetingSide& side, const Meeting& meeting, const When& when, WeekBook& book,
                   Draw& draw) const;
    bool placeAlternating(Meeting& meeting, int room, const When& when, WeekBook& book,
                          Draw& draw) const;
    bool placeWeekB(Meeting& meeting, int room, const When& when, WeekBook& book, Draw& draw) const;

    const Faculty& m_faculty;
    int m_semester;
    std::vector<int> m_queue; // classes, the one that waited longest first
    std::array<std::vector<int>, std::size_t{departmentCount} * levelCount> m_modules; // by cohort
    std::vector<std::vector<int>> m_practicals; // by cohort and laboratory
};

} // namespace demo
