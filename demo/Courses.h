#pragma once

#include "demo/Timetable.h"

namespace demo
{

/// The meetings of one course in one slot: one, or one per class of a shared course.
using Course = std::vector<Meeting>;

/// The courses that take place every week, in the order of their first classes.
[[nodiscard]] std::vector<Course> weeklyCourses(const Timetable& table);

} // namespace demo
