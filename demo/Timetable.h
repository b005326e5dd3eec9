#pragma once

#include "demo/WeekBook.h"

namespace demo
{

/// The weekly timetable of one period.
struct Timetable {
    /// Ordered by class, day and slot. Of the classes of a shared course the first one comes first.
    std::vector<Meeting> meetings;
    WeekBook book; ///< Who and what is taken by them
};

/// Fills the rooms as a faculty does: nearly all in the late morning, fewer in the evening and on
/// Saturday; lectures of several classes in amphitheatres, practical work where the equipment is,
/// tutorials in class rooms.
[[nodiscard]] Timetable makeTimetable(const Faculty& faculty, const Period& period);

} // namespace demo
