#pragma once

#include "demo/Faculty.h"

namespace demo
{

/// The exams of the period's three weeks: final exams in the first two, tests in the control week.
/// The classes of a cohort sit together in time, in as many rooms as they need; amphitheatres take
/// several classes. Nobody is in two places, but for the teachers of one exam in each week (see
/// ExamTeachers.h). Ordered by week, day, slot and class.
[[nodiscard]] std::vector<Exam> makeExams(const Faculty& faculty, const Period& period);

} // namespace demo
