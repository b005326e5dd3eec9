#pragma once

#include "timetable/Week.h"

#include <QString>
#include <cstdint>
#include <vector>

namespace lookup
{

/// When a row is there, as stored.
struct CellTime {
    QString start;
    QString duration; ///< minutes

    friend bool operator==(const CellTime&, const CellTime&) = default;
};

/// What one occupancy lookup yields: who and what is in a room during a slot.
struct RoomCell {
    QString CellText;              ///< text of the box; empty when the room is free
    std::int16_t CellRowCount = 1; ///< timetable rows found; 1 when there is none
    QString CellStart;             ///< start time as stored, for example 8h30
    QString CellDuration;          ///< minutes, as text
    QString CellTeacher;           ///< first teacher, in exam mode the first invigilator
    QString CellSubject;
    bool CellCommon = false; ///< a course that several classes share
    QString CellTypeA;       ///< type of séance, as text
    QString CellTypeB;       ///< third type of the week-B course, as text
    QString CellSeance;      ///< slot key, for example Lundi3
    QString CellRoom;
    QString CellWeekNature;        ///< "00" every week, "10/20" alternating weeks
    QString CellClasses;           ///< class names, one line per row
    QString CellClassList;         ///< class names joined by tabs
    std::int16_t CellStudents = 0; ///< students registered in the classes
    std::int16_t CellCapacity = 0; ///< declared size of the classes

    /// The week in which that what the text tells is held, where it is not held every week.
    timetable::Week week = timetable::Week::Every;

    /// The times of further rows that have others than the first, which the box is drawn with.
    std::vector<CellTime> otherTimes;

    /// The question got no answer, or one that does not say what the box shows: the room is not
    /// free.
    bool isUnknown = false;

    friend bool operator==(const RoomCell&, const RoomCell&) = default;
};

} // namespace lookup
