#pragma once

#include "timetable/Occupancy.h"

#include <QDate>
#include <QString>
#include <variant>
#include <vector>

namespace answers
{

/// Somebody or something that has a week.
using Subject =
    std::variant<timetable::RoomId, timetable::TeacherId, timetable::ClassId, timetable::SubjectId>;

/// Which week is asked about.
struct AskedWeek {
    timetable::Week week = timetable::Week::Every;
    QDate date; ///< a day of it; no valid date: the teaching weeks, without make-ups and exams

    /// Its days, Monday to Saturday.
    [[nodiscard]] std::vector<timetable::When> days() const;
};

/// Whether the holding is one of a room, teacher, class or subject. A name stands for all spellings
/// that the database takes for equal.
[[nodiscard]] bool isAbout(const timetable::Occupancy& occupancy, const timetable::Holding& holding,
                           const Subject& subject);

/// Everything that holds a room in a week, Monday to Saturday: by day, start and room; what has no
/// known start comes first on its day.
[[nodiscard]] std::vector<timetable::HoldingId> weekOfAll(const timetable::Occupancy& occupancy,
                                                          const AskedWeek& week);

/// What somebody or something has in a week, in that order. A part of a row that names no room
/// holds nothing and is not there.
[[nodiscard]] std::vector<timetable::HoldingId>
weekOf(const timetable::Occupancy& occupancy, const Subject& subject, const AskedWeek& week);

} // namespace answers
