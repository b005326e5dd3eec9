#pragma once

#include "demo/Courses.h"

namespace demo
{

/// A class that did not come to a séance, as the program marks it.
struct Absence {
    Meeting meeting;
    QDate date;
    bool ofStudents = false; ///< Marked in `etud_abs` and not in `abscence`
};

/// Absences from courses of the timetable in the reference date's week, up to that date, and in the
/// week before. Of a shared course the first class is absent, with or without the others, so that
/// the plan shows it. Ordered by date.
[[nodiscard]] std::vector<Absence> makeAbsences(const Faculty& faculty, const Timetable& table);

} // namespace demo
