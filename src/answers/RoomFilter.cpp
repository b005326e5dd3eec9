#include "answers/RoomFilter.h"

#include <algorithm>

namespace answers
{

using timetable::DepartmentId;

bool RoomFilter::holds(const timetable::Room& room) const
{
    const bool isOfDepartment = !department || room.department == department ||
                                (room.department && std::find(spellings.begin(), spellings.end(),
                                                              *room.department) != spellings.end());
    return (!zone || room.zone == zone) && isOfDepartment;
}

std::vector<QString> departmentSpellings(const timetable::Timetable& timetable,
                                         const QString& department)
{
    const timetable::Names<DepartmentId>& all = timetable.departments();
    const DepartmentId wanted = all.find(department);
    std::vector<QString> spellings;
    for (int index = 0; !wanted.isNone() && index < all.count(); ++index) {
        if (all.areEqual(DepartmentId(index), wanted)) {
            spellings.push_back(all.text(DepartmentId(index)));
        }
    }
    return spellings;
}

} // namespace answers
