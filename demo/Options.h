#pragma once

#include <QDate>
#include <cstdint>
#include <span>

namespace demo
{

/// How large a faculty, and around which day. The same options give the same faculty, byte by
/// byte, on every platform and in every language.
struct FacultyOptions {
    std::uint32_t seed = 1;
    int rooms = 64; ///< 1 .. 256, what the plan can hold
    int classes = 120;
    int students = 3000;
    int teachers = 180;
    int subjects = 90;
    int periods = 2;
    QDate reference; ///< Lies in the first period; absences and make-ups are around it
};

/// 60 rooms, 3,000 students, 1 period.
[[nodiscard]] FacultyOptions smallFaculty(QDate reference);
/// 250 rooms, 30,000 students, 4 periods.
[[nodiscard]] FacultyOptions middleFaculty(QDate reference);
/// 250 rooms, 120,000 students, 20 periods.
[[nodiscard]] FacultyOptions largeFaculty(QDate reference);

/// One of the sizes, with the limits within which a faculty can be made.
struct SizeOption {
    const char* name; ///< As on the command line, without its dashes
    int FacultyOptions::*value;
    int least;
    int most;
};

/// All sizes that can be chosen.
[[nodiscard]] std::span<const SizeOption> sizeOptions();

/// Error: std::invalid_argument naming the first value outside its limits.
void check(const FacultyOptions& options);

} // namespace demo
