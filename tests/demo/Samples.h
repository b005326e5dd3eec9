#pragma once

#include "demo/Timetable.h"

namespace test
{

/// A Wednesday in the first semester.
[[nodiscard]] inline QDate referenceDay()
{
    return {2026, 11, 25};
}

[[nodiscard]] inline demo::FacultyOptions optionsOf(QDate reference)
{
    demo::FacultyOptions options;
    options.reference = reference;
    return options;
}

/// The faculty as it is made by default, with its first period's timetable: made once, since many
/// tests look at it.
struct Sample {
    demo::Faculty faculty{optionsOf(referenceDay())};
    demo::Timetable table{demo::makeTimetable(faculty, faculty.periods.front())};
};

[[nodiscard]] inline const Sample& sample()
{
    static const Sample made;
    return made;
}

/// So many rooms, classes and so on: 3.
[[nodiscard]] inline demo::FacultyOptions tinyOptions()
{
    demo::FacultyOptions options = optionsOf(referenceDay());
    options.rooms = 3;
    options.classes = 3;
    options.students = 30;
    options.teachers = 3;
    options.subjects = 3;
    options.periods = 1;
    return options;
}

} // namespace test
