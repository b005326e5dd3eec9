#pragma once

#include "demo/Courses.h"

namespace demo
{

/// Make-up classes in the reference date's week and the three weeks after it, the most in the
/// first: courses of the timetable once more, with a date, in rooms that the timetable leaves free
/// in that slot, for classes and teachers that are free then. Ordered by date, slot and class.
[[nodiscard]] std::vector<Meeting> makeMakeUps(const Faculty& faculty, const Timetable& table);

} // namespace demo
