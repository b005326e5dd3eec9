#include "demo/Faculty.h"

#include "demo/Classes.h"
#include "demo/People.h"
#include "demo/Rooms.h"
#include "demo/SchoolYear.h"

namespace demo
{
namespace
{

const FacultyOptions& checked(const FacultyOptions& options)
{
    check(options);
    return options;
}

} // namespace

Faculty::Faculty(const FacultyOptions& chosen)
    : options(checked(chosen)), rooms(makeRooms(options.rooms)), classes(makeClasses(options)),
      teachers(makeTeachers(options.teachers, options.seed)), curriculum(options.subjects),
      periods(periodsAround(options.reference, options.periods))
{
}

} // namespace demo
