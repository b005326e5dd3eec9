#include "demo/Options.h"

#include <array>
#include <stdexcept>
#include <string>

namespace demo
{

FacultyOptions smallFaculty(QDate reference)
{
    FacultyOptions options;
    options.rooms = 60;
    options.periods = 1;
    options.reference = reference;
    return options;
}

FacultyOptions middleFaculty(QDate reference)
{
    FacultyOptions options;
    options.rooms = 250;
    options.classes = 1000;
    options.students = 30'000;
    options.teachers = 800;
    options.subjects = 180;
    options.periods = 4;
    options.reference = reference;
    return options;
}

FacultyOptions largeFaculty(QDate reference)
{
    FacultyOptions options = middleFaculty(reference);
    options.classes = 4000;
    options.students = 120'000;
    options.periods = 20;
    return options;
}

std::span<const SizeOption> sizeOptions()
{
    static constexpr std::array<SizeOption, 6> all = {{
        {"rooms", &FacultyOptions::rooms, 1, 256},
        {"classes", &FacultyOptions::classes, 1, 8000},
        {"students", &FacultyOptions::students, 0, 1'000'000},
        {"teachers", &FacultyOptions::teachers, 1, 10'000},
        {"subjects", &FacultyOptions::subjects, 1, 1000},
        {"periods", &FacultyOptions::periods, 1, 40},
    }};
    return all;
}

void check(const FacultyOptions& options)
{
    for (const SizeOption& size : sizeOptions()) {
        const int value = options.*size.value;
        if (value < size.least || value > size.most) {
            throw std::invalid_argument(std::string(size.name) + " must lie between " +
                                        std::to_string(size.least) + " and " +
                                        std::to_string(size.most));
        }
    }
    if (!options.reference.isValid() || options.reference.year() < 1950 ||
        options.reference.year() > 2199) {
        throw std::invalid_argument("the date must lie between 1950-01-01 and 2199-12-31");
    }
}

} // namespace demo
