#pragma once

#include "demo/Model.h"
#include "demo/Options.h"

namespace demo
{

/// The classes with their sizes, cohort by cohort: five groups in a first year for each one in a
/// last year, and the smaller the further up. The students of all classes add up to the number
/// asked for; a few classes have none yet, and a few more than their capacity.
[[nodiscard]] std::vector<StudentClass> makeClasses(const FacultyOptions& options);

/// Number of the class's cohort: 0 .. 39.
[[nodiscard]] int cohortOf(const StudentClass& studentClass);

} // namespace demo
