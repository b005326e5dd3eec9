#pragma once

#include <QDate>
#include <QString>
#include <vector>

/// The faculty as plain values. Rooms, classes, teachers and subjects are named elsewhere by their
/// index in the faculty's lists; `nobody` stands for none.
namespace demo
{

constexpr int nobody = -1;

constexpr int levelCount = 5; ///< L1, L2, L3, M1, M2

enum class RoomKind { Amphi, Classroom, Seminar, Practical };

/// What a room for practical work is equipped for.
enum class Lab {
    None,
    Computers,
    Physics,
    Chemistry,
    Biology,
    Automation,
    Machines,
    Materials,
    Mechanics,
    Workshop,
};
constexpr int labCount = 10;

struct Room {
    QString name;
    RoomKind kind = RoomKind::Classroom;
    Lab lab = Lab::None;
    int zone = 1;
    int department = nobody; ///< nobody: open to all
    int places = 0;
};

/// A class (group) of students. The classes of one department and level form a cohort.
struct StudentClass {
    QString name;
    int department = 0;
    int level = 0;
    int students = 0; ///< 0: nobody has registered yet
    int capacity = 0;

    /// What a room must hold: the students, or the capacity while there are none.
    [[nodiscard]] int size() const { return students > 0 ? students : capacity; }
};

struct Teacher {
    QString name;
    int department = 0;
};

struct Subject {
    QString name;
    int department = 0;
    Lab lab = Lab::None; ///< Where its practical work is done, if it has any
};

/// A teaching period with the Mondays of its exam weeks.
struct Period {
    int ident = 1;
    QString name;
    QDate first; ///< A Monday
    QDate last;
    QDate examWeek1;
    QDate examWeek2;
    QDate controlWeek;
    int academicYear = 0; ///< 2026 for 2026-2027
    int semester = 1;     ///< 1 or 2: which half of the curriculum is taught
};

/// Rooms, teachers and subjects of one week kind.
struct MeetingSide {
    int room = nobody;
    int secondRoom = nobody;
    int thirdRoom = nobody;
    std::vector<int> teachers; ///< At most 3
    std::vector<int> secondTeachers;
    int subject = nobody;
    int secondSubject = nobody;
};

/// One class in one slot of the weekly timetable: one row of `emplois` or, with a date, `ratrap`.
/// A shared course is one meeting per class, in the same room.
struct Meeting {
    int day = 0;  ///< 0 = Monday
    int slot = 0; ///< 0 .. 7
    bool alternating = false;
    int type = 0;  ///< `Ref` of the séance type
    int typeB = 0; ///< The same for the week-B side
    int studentClass = nobody;
    MeetingSide a; ///< Every week, or week A when alternating
    MeetingSide b;
    int start = 0; ///< Minutes since midnight
    int minutes = 90;
    bool common = false;
    QDate date; ///< Only of a make-up
};

/// One class in one room at an exam.
struct Exam {
    int week = 1; ///< 1 .. 3
    int day = 0;
    int slot = 0;
    int room = nobody;
    int type = 0;
    int studentClass = nobody;
    int teacher = nobody;
    std::vector<int> invigilators; ///< 1 to 3
    int subject = nobody;
    int start = 0;
    int minutes = 90;
    bool common = false;
};

} // namespace demo
