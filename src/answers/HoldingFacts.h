#pragma once

#include "timetable/Occupancy.h"

#include <QDate>
#include <array>
#include <vector>

namespace answers
{

/// What whoever compares holdings asks of each, side by side in memory. Clashes compare some
/// hundred thousand pairs, and looking these up in holdings and meetings took most of their time.
/// Names are known by the first of their spellings, so that equal names have equal ids.
struct HoldingFacts {
    int meeting = 0; ///< its position in `Timetable::meetings`
    timetable::Part part = timetable::Part::A;
    timetable::MeetingKind kind = timetable::MeetingKind::Course;
    timetable::Week weeks = timetable::Week::Every;
    int day = timetable::kNoDay; ///< as `Holding` has it, and the next two
    QDate date;
    std::array<timetable::RoomNameId, 2> rooms;
    /// All rooms of its part in week A: of an alternating course, whose two rooms are two holdings,
    /// the other one as well. In week B it has `rooms` alone.
    std::array<timetable::RoomNameId, 2> roomsInA;
    timetable::MinuteOfDay start; ///< midnight where the time is not known, as is `end`
    timetable::MinuteOfDay end;
    timetable::TeacherId teacher; ///< the first one of its part
    timetable::SubjectId subject;
    timetable::ClassId className;
};

/// Of all holdings of an occupancy, by their ids.
[[nodiscard]] std::vector<HoldingFacts> factsOf(const timetable::Occupancy& occupancy);

} // namespace answers
