#pragma once

#include "timetable/Occupancy.h"

#include <QDate>
#include <QString>
#include <optional>
#include <vector>

namespace answers
{

/// What is wrong, gravest first.
enum class ClashKind {
    Room,          ///< held by two rows at once
    Teacher,       ///< in two rooms at once
    Class,         ///< in two rows at once
    Overfull,      ///< a room with fewer places than students
    MakeupRoom,    ///< as `Room`, with a make-up
    MakeupTeacher, ///< as `Teacher`, with a make-up
    MakeupClass,   ///< as `Class`, with a make-up
    UnknownRoom,   ///< named by rows, but not in the room table
    NoTime,        ///< a row whose start is not known
};

/// One thing that is wrong, told once.
struct Clash {
    ClashKind kind = ClashKind::Room;
    /// The room, teacher or class, by its first spelling; of `NoTime` the row's first room.
    QString name;
    /// 0 to 6, a date's own. No day for `UnknownRoom`, and for `NoTime` where `unplaced` says so.
    int day = timetable::kNoDay;
    QDate date; ///< no valid date in the teaching weeks
    /// Those in which it is so; on a date those of the courses that it is about.
    timetable::Week weeks = timetable::Week::Every;
    /// By start, the shorter first. Of an unknown room all that it ever holds, by day, date and
    /// start: none where only rows without a day name it. Of `NoTime` the row's parts, unless
    /// `unplaced` is this row.
    std::vector<timetable::HoldingId> holders;
    /// Of `NoTime`: the row, if it has no day either.
    std::optional<timetable::Unplaced> unplaced = {};
    /// From the first to the last minute in which it is so; nothing for the last two kinds.
    std::optional<timetable::TimeSpan> time;
    int students = 0; ///< of `Overfull`: the most that are there at one moment
    int places = 0;   ///< of `Overfull`

    friend bool operator==(const Clash&, const Clash&) = default;
};

/// Everything that is wrong with the courses, make-ups and exams of the period: by kind; then what
/// is of the teaching weeks by day, what has a date by date, and what has neither; by time; by
/// name.
///
/// Courses are compared with courses of their day and week, exams with exams of their date, and
/// make-ups with the make-ups, exams and, within the period, courses of theirs, in either week; a
/// course never with an exam. Those that clash in pairs make one clash: of one kind, name and day.
///
/// - Rows that begin together with the same first teacher and subject (both may have none) are one
///   common course. They do not clash over their room, nor over their class where they share a
///   room; over their teachers they do.
/// - The parts of one row do not clash over a room or the class. Over a teacher they do, unless
///   they share a room: nobody is in two rooms then. The two rooms of one part are no clash. Of
///   an alternating course with two rooms, which rooms these are is a matter of the week.
/// - In a room are at one moment the students of all classes there, each class once: of courses,
///   of make-ups and of exams each on their own. A room without places is never too full, and none
///   is where the students cannot be read (see Timetable::unread).
/// - Only rooms of the room table clash. Of several equal ones there, held by the same rows, the
///   first counts.
/// - What has no known time or day clashes with nothing.
[[nodiscard]] std::vector<Clash> clashes(const timetable::Occupancy& occupancy);

/// The holders of a clash, or what would be if the row's day were known.
[[nodiscard]] std::vector<timetable::Holding> holdersOf(const timetable::Occupancy& occupancy,
                                                        const Clash& clash);

} // namespace answers
