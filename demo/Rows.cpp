#include "demo/Rows.h"

#include "demo/WeekTime.h"

namespace demo
{
namespace
{

constexpr int teacherColumns = 3;

Field yesOrNo(bool value)
{
    return value ? 1 : 0;
}

QString weekNature(const Meeting& meeting)
{
    return meeting.alternating ? "10/20" : "00";
}

QString hourAndMinute(int minutesOfDay)
{
    return QString("%1:%2")
        .arg(minutesOfDay / 60, 2, 10, QChar('0'))
        .arg(minutesOfDay % 60, 2, 10, QChar('0'));
}

} // namespace

Field Rows::room(int index) const
{
    return index == nobody ? Field() : Field(m_faculty.room(index).name);
}

Field Rows::subject(int index) const
{
    return index == nobody ? Field() : Field(m_faculty.subject(index).name);
}

Field Rows::teacher(const std::vector<int>& teachers, std::size_t rank) const
{
    return rank < teachers.size() ? Field(m_faculty.teacher(teachers.at(rank)).name) : Field();
}

void Rows::addTeachers(std::vector<Field>& row, const std::vector<int>& teachers) const
{
    for (std::size_t rank = 0; rank < teacherColumns; ++rank) {
        row.push_back(teacher(teachers, rank));
    }
}

std::vector<Field> Rows::meeting(const Meeting& meeting, const Period& period) const
{
    const MeetingSide& a = meeting.a;
    const MeetingSide& b = meeting.b;
    std::vector<Field> row = {room(a.room),
                              room(a.secondRoom),
                              room(a.thirdRoom),
                              room(b.room),
                              room(b.secondRoom),
                              room(b.thirdRoom),
                              slotKey(meeting.day, meeting.slot),
                              period.ident,
                              weekNature(meeting),
                              meeting.type,
                              meeting.typeB,
                              m_faculty.studentClass(meeting.studentClass).name};
    addTeachers(row, a.teachers);
    addTeachers(row, a.secondTeachers);
    addTeachers(row, b.teachers);
    addTeachers(row, b.secondTeachers);
    row.insert(row.end(), {subject(a.subject), subject(a.secondSubject), subject(b.subject),
                           subject(b.secondSubject), timeText(meeting.start),
                           QString::number(meeting.minutes), yesOrNo(meeting.common)});
    return row;
}

std::vector<Field> Rows::makeUp(const Meeting& meeting, const Period& period) const
{
    std::vector<Field> row = this->meeting(meeting, period);
    row.emplace_back(meeting.date);
    return row;
}

std::vector<Field> Rows::exam(const Exam& exam, const Period& period) const
{
    std::vector<Field> row = {room(exam.room),
                              slotKey(exam.day, exam.slot),
                              period.ident,
                              exam.week,
                              QString("00"),
                              exam.type,
                              0,
                              m_faculty.studentClass(exam.studentClass).name};
    addTeachers(row, exam.teacher == nobody ? std::vector<int>() : std::vector<int>{exam.teacher});
    addTeachers(row, exam.invigilators);
    row.insert(row.end(), {subject(exam.subject), timeText(exam.start),
                           QString::number(exam.minutes), yesOrNo(exam.common)});
    return row;
}

std::vector<Field> Rows::classAbsence(const Absence& absence, const Period& period) const
{
    const Meeting& meeting = absence.meeting;
    return {m_faculty.studentClass(meeting.studentClass).name,
            slotKey(meeting.day, meeting.slot),
            period.ident,
            subject(meeting.a.subject),
            room(meeting.a.room),
            teacher(meeting.a.teachers, 0),
            weekNature(meeting),
            meeting.type,
            0, // the other types are not kept by the program
            0,
            0,
            0,
            meeting.typeB,
            meeting.minutes,
            yesOrNo(meeting.common),
            timeText(meeting.start),
            absence.date,
            1};
}

std::vector<Field> Rows::studentAbsence(const Absence& absence, const Period& period) const
{
    constexpr int identLength = 15;
    const Meeting& meeting = absence.meeting;
    const QString name = m_faculty.studentClass(meeting.studentClass).name;
    return {name,
            name,
            slotKey(meeting.day, meeting.slot),
            period.ident,
            subject(meeting.a.subject),
            timeText(meeting.start),
            hourAndMinute(meeting.start + meeting.minutes),
            absence.date,
            name.left(identLength)};
}

} // namespace demo
