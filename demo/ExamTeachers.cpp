#include "demo/ExamTeachers.h"

#include "demo/WeekBook.h"

#include <map>
#include <set>
#include <tuple>
#include <utility>

namespace demo
{
namespace
{

When timeOf(const Exam& exam)
{
    return {exam.day, exam.slot, 0, exam.minutes, everyWeek};
}

/// The exams of one week.
class Week
{
public:
    explicit Week(const Faculty& faculty) : m_faculty(faculty), m_book(faculty) {}

    /// All of the week must have been told before the first teacher is chosen.
    void addInvigilators(const Exam& exam)
    {
        if (isNew(m_watched, exam)) {
            for (const int each : exam.invigilators) {
                m_book.takeTeacher(each, timeOf(exam));
            }
        }
    }

    void chooseTeacher(Exam& exam)
    {
        if (exam.teacher == nobody) {
            return;
        }
        const auto sitting = std::tuple(exam.day, exam.slot, exam.subject, exam.teacher);
        const auto [chosen, isFirst] = m_teachers.try_emplace({sitting, exam.room}, exam.teacher);
        if (!isFirst) {
            exam.teacher = chosen->second; // as the other classes in that room
            return;
        }
        const bool isForgotten = m_kept.contains(sitting) && !std::exchange(m_hasForgotten, true);
        if (isForgotten) {
            return;
        }
        if (m_book.teacherFree(exam.teacher, timeOf(exam))) {
            m_kept.insert(sitting);
        } else {
            exam.teacher = chosen->second = m_book.findTeacher(
                m_faculty.subject(exam.subject).department, exam.subject, timeOf(exam));
        }
        if (exam.teacher != nobody) {
            m_book.takeTeacher(exam.teacher, timeOf(exam));
        }
    }

private:
    using Room = std::tuple<int, int, int>;         ///< day, slot, room
    using Sitting = std::tuple<int, int, int, int>; ///< day, slot, subject, teacher

    static bool isNew(std::set<Room>& rooms, const Exam& exam)
    {
        return rooms.insert({exam.day, exam.slot, exam.room}).second;
    }

    const Faculty& m_faculty;
    WeekBook m_book;
    std::set<Room> m_watched;
    std::set<Sitting> m_kept;                          ///< those that kept their teacher in a room
    std::map<std::pair<Sitting, int>, int> m_teachers; ///< by sitting and room
    bool m_hasForgotten = false;
};

} // namespace

void shareOutTeachers(const Faculty& faculty, std::vector<Exam>& exams)
{
    std::map<int, Week> weeks;
    for (const Exam& exam : exams) {
        weeks.try_emplace(exam.week, faculty).first->second.addInvigilators(exam);
    }
    for (Exam& exam : exams) {
        weeks.at(exam.week).chooseTeacher(exam);
    }
}

} // namespace demo
