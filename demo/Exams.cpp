#include "demo/Exams.h"

#include "demo/Classes.h"
#include "demo/Draw.h"
#include "demo/ExamTeachers.h"
#include "demo/WeekBook.h"

#include <algorithm>
#include <tuple>

namespace demo
{
namespace
{

constexpr int weekCount = 3;
constexpr int controlWeek = 3;
constexpr int examsPerWeek = 4;

/// Neighbouring classes of one cohort that sit the same exams.
struct Section {
    std::vector<int> classes;
    std::vector<int> modules;
};

std::vector<Section> makeSections(const Faculty& faculty, const Period& period)
{
    constexpr std::size_t largest = 8;
    std::vector<Section> sections;
    int cohort = nobody;
    for (int index = 0; index < static_cast<int>(faculty.classes.size()); ++index) {
        const StudentClass& one = faculty.studentClass(index);
        if (cohortOf(one) != cohort || sections.back().classes.size() == largest) {
            cohort = cohortOf(one);
            sections.push_back(
                {{}, faculty.curriculum.modules(one.department, one.level, period.semester)});
        }
        sections.back().classes.push_back(index);
    }
    return sections;
}

/// Plans the exams of one week.
class ExamWeek
{
public:
    ExamWeek(const Faculty& faculty, int week, Draw& draw)
        : m_faculty(faculty), m_week(week), m_draw(draw), m_book(faculty)
    {
        for (int room = 0; room < static_cast<int>(faculty.rooms.size()); ++room) {
            if (faculty.room(room).kind != RoomKind::Practical) {
                m_rooms.push_back(room);
            }
        }
    }

    /// One exam of the section: the modules take turns from week to week.
    void plan(const Section& section, int number)
    {
        Exam exam;
        exam.week = m_week;
        exam.subject =
            section.modules.at(static_cast<std::size_t>(number) % section.modules.size());
        exam.type = examType();
        When when;
        if (!findTime(section, when)) {
            return;
        }
        exam.day = when.day;
        exam.slot = when.slot;
        exam.start = when.start();
        exam.minutes = when.minutes;
        exam.teacher =
            m_book.findTeacher(m_faculty.subject(exam.subject).department, exam.subject * 5, when);
        seat(section, exam, when);
    }

    [[nodiscard]] const std::vector<Exam>& exams() const { return m_exams; }

private:
    [[nodiscard]] int examType()
    {
        if (m_week == controlWeek) {
            return type::test;
        }
        return m_draw.percent(10) ? type::resit : type::finalExam;
    }

    [[nodiscard]] bool allFree(const Section& section, const When& when, bool idle) const
    {
        return std::all_of(section.classes.begin(), section.classes.end(), [&](int one) {
            return m_book.classFree(one, when) && (!idle || m_book.classIdle(one, when.day));
        });
    }

    /// A time at which the section is free, on a day without another exam where there is one.
    bool findTime(const Section& section, When& found)
    {
        constexpr int attempts = 60;
        static constexpr std::array<int, 8> slots = {0, 0, 1, 1, 3, 3, 4, 2};
        const int drawn = m_draw.below(10);
        for (int attempt = 0; attempt < attempts; ++attempt) {
            When when{m_draw.below(dayCount), m_draw.pick(slots), 0, 90, everyWeek};
            const bool saturdayAfternoon = when.day == dayCount - 1 && when.slot >= slotsBeforeNoon;
            when.minutes = drawn < 2 && fitsHalfDay(when.slot, 180) ? 180 : drawn < 4 ? 45 : 90;
            const bool idle = attempt < attempts / 2;
            if (!saturdayAfternoon && allFree(section, when, idle)) {
                found = when;
                return true;
            }
        }
        return false;
    }

    /// A free room with so many places and not far too many, or nobody.
    [[nodiscard]] int findRoom(int places, bool amphi, const When& when)
    {
        std::vector<int> fitting;
        for (const int index : m_rooms) {
            const Room& room = m_faculty.room(index);
            const bool kindFits = (room.kind == RoomKind::Amphi) == amphi;
            const bool sizeFits = room.places >= places && room.places <= 3 * places;
            if (kindFits && sizeFits && m_book.roomFree(index, when)) {
                fitting.push_back(index);
            }
        }
        return fitting.empty() ? nobody : m_draw.pick(fitting);
    }

    /// Puts the section's classes into rooms: some of them together into an amphitheatre.
    void seat(const Section& section, Exam exam, const When& when)
    {
        constexpr std::size_t together = 3;
        std::size_t next = 0;
        while (next < section.classes.size()) {
            const std::size_t left = section.classes.size() - next;
            std::size_t count = m_draw.percent(55) ? std::min(together, left) : 1;
            int room = nobody;
            if (count > 1) {
                // Every other seat stays empty.
                room = findRoom(2 * sizeOf(section, next, count), true, when);
            }
            if (room == nobody) {
                count = 1;
                room = findRoom(sizeOf(section, next, 1), false, when);
            }
            exam.room = room;
            exam.common = count > 1;
            addRows(section, next, count, exam, when);
            next += count;
        }
    }

    [[nodiscard]] int sizeOf(const Section& section, std::size_t first, std::size_t count) const
    {
        int size = 0;
        for (std::size_t index = first; index < first + count; ++index) {
            size += m_faculty.studentClass(section.classes.at(index)).size();
        }
        return size;
    }

    void addRows(const Section& section, std::size_t first, std::size_t count, Exam exam,
                 const When& when)
    {
        constexpr int perInvigilator = 25;
        const int size = sizeOf(section, first, count);
        exam.invigilators = exam.room == nobody
                                ? std::vector<int>()
                                : hire(std::min(3, 1 + size / perInvigilator), when);
        if (exam.invigilators.empty()) {
            return; // no room or nobody to watch: these classes do not sit it
        }
        m_book.takeRoom(exam.room, when);
        for (std::size_t index = first; index < first + count; ++index) {
            exam.studentClass = section.classes.at(index);
            m_book.takeClass(exam.studentClass, when);
            m_exams.push_back(exam);
        }
    }

    [[nodiscard]] std::vector<int> hire(int count, const When& when)
    {
        std::vector<int> hired;
        for (int attempt = 0; attempt < 12 && static_cast<int>(hired.size()) < count; ++attempt) {
            // One draw per statement: compilers evaluate arguments in orders of their own.
            const int department = m_draw.below(departmentCount + 1);
            const int preferred = m_draw.below(1000);
            const int teacher = m_book.findTeacher(department, preferred, when);
            if (teacher != nobody) {
                m_book.takeTeacher(teacher, when);
                hired.push_back(teacher);
            }
        }
        return hired;
    }

    const Faculty& m_faculty;
    int m_week;
    Draw& m_draw;
    WeekBook m_book;
    std::vector<int> m_rooms;
    std::vector<Exam> m_exams;
};

bool comesBefore(const Exam& left, const Exam& right)
{
    return std::tie(left.week, left.day, left.slot, left.studentClass) <
           std::tie(right.week, right.day, right.slot, right.studentClass);
}

} // namespace

std::vector<Exam> makeExams(const Faculty& faculty, const Period& period)
{
    Draw draw(faculty.options.seed, Topic::Exams, static_cast<std::uint32_t>(period.ident));
    std::vector<Section> sections = makeSections(faculty, period);
    std::vector<Exam> exams;
    for (int week = 1; week <= weekCount; ++week) {
        draw.shuffle(sections);
        ExamWeek planned(faculty, week, draw);
        for (int number = 0; number < examsPerWeek; ++number) {
            for (const Section& section : sections) {
                planned.plan(section, number + (week - 1) * examsPerWeek);
            }
        }
        exams.insert(exams.end(), planned.exams().begin(), planned.exams().end());
    }
    std::stable_sort(exams.begin(), exams.end(), comesBefore);
    shareOutTeachers(faculty, exams);
    return exams;
}

} // namespace demo
