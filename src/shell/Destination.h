#pragma once

#include "shell/Shell.h"
#include "timetable/Occupancy.h"

#include <QDate>
#include <QString>

namespace shell
{

/// What somebody wants to see on the plan.
struct Destination {
    timetable::MeetingKind kind = timetable::MeetingKind::Course;
    QString room; ///< as the room table spells it
    /// 0 to 6, of an exam counted from the first day of its week; no day: the one that is shown
    int day = timetable::kNoDay;
    QDate date;       ///< of what has one, or was asked about by date
    int slot = 0;     ///< the box's, counting from 1; 0 for the row alone
    int examWeek = 0; ///< of exams: 1 to 3
    timetable::Week weeks = timetable::Week::Every; ///< those in which it is held
    QString subject; ///< of the box; a plan of another subject would not show it

    /// Where a meeting is to be seen; of several rooms the first that the room table knows.
    [[nodiscard]] static Destination of(const timetable::Occupancy& occupancy,
                                        timetable::HoldingId id);
};

/// Makes the choices that lead there, as the user would: mode, week, day or date, and the page that
/// holds the room. What shows it already stays as it is; a choice of rooms that leaves the room
/// out gives way to all rooms, and "Selon la Matière" to all subjects. Tells how the room is shown.
/// Errors: those of the choices.
engine::Engine::RoomLine travel(Shell& shell, const Destination& destination);

} // namespace shell
