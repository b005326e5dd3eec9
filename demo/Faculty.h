#pragma once

#include "demo/Curriculum.h"
#include "demo/Model.h"
#include "demo/Options.h"

namespace demo
{

/// Everything that does not change from period to period.
struct Faculty {
    /// Error: std::invalid_argument for options outside their limits.
    explicit Faculty(const FacultyOptions& chosen);

    FacultyOptions options;
    std::vector<Room> rooms;
    std::vector<StudentClass> classes;
    std::vector<Teacher> teachers;
    Curriculum curriculum;
    std::vector<Period> periods;

    // By index, since the lists' own indices are unsigned.
    [[nodiscard]] const Room& room(int index) const { return rooms.at(std::size_t(index)); }
    [[nodiscard]] const StudentClass& studentClass(int index) const
    {
        return classes.at(std::size_t(index));
    }
    [[nodiscard]] const Teacher& teacher(int index) const
    {
        return teachers.at(std::size_t(index));
    }
    [[nodiscard]] const Subject& subject(int index) const
    {
        return curriculum.subjects().at(std::size_t(index));
    }
};

} // namespace demo
