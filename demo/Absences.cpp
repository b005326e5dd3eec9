#include "demo/Absences.h"

#include "demo/Draw.h"
#include "demo/SchoolYear.h"

#include <algorithm>

namespace demo
{
namespace
{

void addAbsence(const Course& course, QDate date, bool ofStudents, bool everybody,
                std::vector<Absence>& absences)
{
    const std::size_t count = everybody ? course.size() : 1;
    for (std::size_t index = 0; index < count; ++index) {
        absences.push_back({course.at(index), date, ofStudents});
    }
}

std::vector<Absence> absencesOn(QDate date, const std::vector<Course>& courses, Draw& draw)
{
    constexpr int chance = 5; // percent of the courses, for either kind of absence
    std::vector<Absence> absences;
    for (const Course& course : courses) {
        if (course.front().day != date.dayOfWeek() - 1) {
            continue;
        }
        const bool everybody = draw.percent(40);
        if (draw.percent(chance)) {
            addAbsence(course, date, false, everybody, absences);
        }
        if (draw.percent(chance)) {
            addAbsence(course, date, true, everybody, absences);
        }
    }
    return absences;
}

} // namespace

std::vector<Absence> makeAbsences(const Faculty& faculty, const Timetable& table)
{
    constexpr int daysBefore = 7;
    Draw draw(faculty.options.seed, Topic::Absences);
    const std::vector<Course> courses = weeklyCourses(table);
    const QDate last = faculty.options.reference;
    std::vector<Absence> absences;
    QDate date = std::max(mondayOf(last).addDays(-daysBefore), faculty.periods.front().first);
    for (; date <= last; date = date.addDays(1)) {
        const std::vector<Absence> some = absencesOn(date, courses, draw);
        absences.insert(absences.end(), some.begin(), some.end());
    }
    return absences;
}

} // namespace demo
