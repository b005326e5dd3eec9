#include "demo/Lectures.h"

#include "demo/Classes.h"

#include <algorithm>
#include <map>

namespace demo
{

Lectures::Lectures(const Faculty& faculty, const Period& period, Draw& draw) : m_faculty(faculty)
{
    std::map<int, std::vector<int>> cohorts;
    for (int index = 0; index < static_cast<int>(faculty.classes.size()); ++index) {
        cohorts[cohortOf(faculty.studentClass(index))].push_back(index);
    }
    for (const auto& [number, classes] : cohorts) {
        const int department = number / levelCount;
        const int level = number % levelCount;
        std::vector<int> modules = faculty.curriculum.modules(department, level, period.semester);
        if (modules.size() > 1) {
            modules.pop_back(); // languages are learnt in small groups
        }
        m_queue.push_back({number, classes, modules, 0, 0});
    }
    draw.shuffle(m_queue);
}

bool Lectures::suits(const Room& room, Draw& draw) const
{
    constexpr int smallLectures = 14; // percent
    return room.kind == RoomKind::Amphi ||
           (room.kind == RoomKind::Classroom && draw.percent(smallLectures));
}

Lectures::Audience Lectures::audienceOf(std::size_t position, int places, const When& when,
                                        const WeekBook& book) const
{
    const Cohort& cohort = m_queue.at(position);
    Audience audience;
    audience.cohort = position;
    for (std::size_t step = 0; step < cohort.classes.size(); ++step) {
        const std::size_t place = (cohort.nextClass + step) % cohort.classes.size();
        const int index = cohort.classes.at(place);
        const int size = m_faculty.studentClass(index).size();
        if (!book.classFree(index, when)) {
            continue;
        }
        if (audience.size + size > places) {
            break;
        }
        audience.classes.push_back(index);
        audience.size += size;
    }
    return audience;
}

Lectures::Audience Lectures::bestAudience(const Room& room, const When& when, const WeekBook& book,
                                          Draw& draw) const
{
    constexpr std::size_t considered = 8;
    constexpr int tooManyStudents = 7; // percent of the lectures
    const int places = draw.percent(tooManyStudents) ? room.places * 12 / 10 : room.places;
    const auto fillsEnough = [&](const Audience& audience) {
        return audience.size * 3 >= room.places;
    };
    Audience best;
    std::size_t seen = 0;
    for (std::size_t position = 0; position < m_queue.size(); ++position) {
        if (seen >= considered && fillsEnough(best)) {
            break;
        }
        const bool ours = room.department == nobody ||
                          m_queue.at(position).number / levelCount == room.department;
        if (!ours) {
            continue;
        }
        Audience audience = audienceOf(position, places, when, book);
        seen += audience.classes.empty() ? 0U : 1U;
        if (audience.size > best.size) {
            best = std::move(audience);
        }
    }
    if (room.kind == RoomKind::Amphi && !fillsEnough(best)) {
        return {}; // better empty than a handful of students in a large hall
    }
    // In the order of their names, so that the first one stands for the course.
    std::sort(best.classes.begin(), best.classes.end());
    return best;
}

bool Lectures::place(int room, const When& when, Timetable& table, Draw& draw)
{
    const Audience audience = bestAudience(m_faculty.room(room), when, table.book, draw);
    if (audience.classes.empty()) {
        return false;
    }
    Cohort& cohort = m_queue.at(audience.cohort);
    const int subject = cohort.modules.at(cohort.nextModule % cohort.modules.size());
    const int teacher = table.book.findTeacher(m_faculty.subject(subject).department,
                                               subject * 5 + cohort.number, when);
    if (teacher == nobody) {
        return false;
    }
    Meeting meeting;
    meeting.day = when.day;
    meeting.slot = when.slot;
    meeting.start = when.start();
    meeting.minutes = when.minutes;
    meeting.type = type::lecture;
    meeting.common = audience.classes.size() > 1;
    meeting.a.room = room;
    meeting.a.subject = subject;
    meeting.a.teachers = {teacher};
    table.book.takeRoom(room, when);
    table.book.takeTeacher(teacher, when);
    for (const int index : audience.classes) {
        meeting.studentClass = index;
        table.meetings.push_back(meeting);
        table.book.takeClass(index, when);
    }
    ++cohort.nextModule;
    cohort.nextClass = (cohort.nextClass + audience.classes.size()) % cohort.classes.size();
    std::rotate(m_queue.begin() + static_cast<std::ptrdiff_t>(audience.cohort),
                m_queue.begin() + static_cast<std::ptrdiff_t>(audience.cohort) + 1, m_queue.end());
    return true;
}

} // namespace demo
