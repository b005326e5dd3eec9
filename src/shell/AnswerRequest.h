#pragma once

#include "files/AnswerFormat.h"
#include "timetable/TimeSpan.h"

#include <QString>

namespace shell
{

/// A question about the timetable whose answer is written into a file.
struct AnswerRequest {
    enum class Who { Room, Teacher, Class, Subject, EveryRoom };

    files::AnswerKind kind = files::AnswerKind::FreeRooms;
    QString file;
    // Free rooms
    timetable::TimeSpan span; ///< longer than nothing
    int places = 0;           ///< at least
    int weeksRunning = 1;     ///< 1 upward; more only with a date
    // Week of...
    Who who = Who::Room;
    QString name; ///< empty for every room
    // Find
    QString text; ///< not empty
};

} // namespace shell
