#pragma once

#include "answers/WeekOf.h"
#include "timetable/Occupancy.h"

#include <QString>
#include <QStringList>
#include <optional>
#include <vector>

namespace answers
{

/// One box of a drawn week: a course, make-up or exam.
struct WeekBox {
    /// More than one where several classes have the course together; in the order of the items.
    std::vector<timetable::HoldingId> holdings;
    int day = timetable::kMonday; ///< 0 to 5
    timetable::TimeSpan time;     ///< may reach beyond the axis of its day
    int lane = 0;                 ///< of `lanes`, from 0: boxes of one time share the room there is
    int lanes = 1;
    /// What to write, most important first and none empty, without whose week it is: classes,
    /// subject, teachers, rooms.
    QStringList lines;
    /// Whether it begins or ends elsewhere than the slots of its day do, so that nobody can read
    /// its time off the hours beside it. Set by whoever knows the slots: `weekGrid`.
    bool isOffSlots = false;
    /// What to write where there is room for hardly anything: the first class with the number of
    /// the others, "L1 INFO A +4", or else the first line; empty without lines.
    QString shortText;
    QString corner; ///< "A" or "B"; empty for what is held every week or has a date
    timetable::MeetingKind kind = timetable::MeetingKind::Course;
    timetable::RoomId room; ///< whose colour it has: the one whose week it is, else its first

    friend bool operator==(const WeekBox&, const WeekBox&) = default;
};

/// The boxes of what holds a room in a week and has a known time, by day, start and week.
///
/// Rows that begin and end together, in the same rooms and weeks and with the same teachers and
/// subject, are one course of several classes and one box. Boxes that overlap get lanes, A before
/// B. `subject` is whose week it is; nothing for all rooms.
[[nodiscard]] std::vector<WeekBox> weekBoxes(const timetable::Occupancy& occupancy,
                                             const std::optional<Subject>& subject,
                                             const std::vector<timetable::HoldingId>& items);

/// The box in words, for whoever does not see it: "Lundi 9h30–11h00, semaine A, rattrapage : L2
/// INFO A, Algèbre, Durand". `dayTitle` as WeekDay has it.
[[nodiscard]] QString boxWords(const WeekBox& box, const QString& dayTitle);

} // namespace answers
