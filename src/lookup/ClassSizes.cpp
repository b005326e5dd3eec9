#include "lookup/ClassSizes.h"

#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"
#include "timetable/SchoolColumns.h"
#include "timetable/SlotKeys.h"

namespace lookup
{

std::int16_t SlotIndex(const QString& seanceKey)
{
    return runtime::nearestInt16(timetable::slotNumber(seanceKey) - 1);
}

std::int16_t StudentCount(RowSource& source, const QString& className)
{
    return runtime::nearestInt16(source.studentRows(className));
}

std::int16_t ClassCapacity(RowSource& source, const QString& className)
{
    std::int16_t capacity = 0;
    if (!className.isEmpty()) {
        runtime::skipOnError([&] {
            const db::Recordset found = source.classRows(className);
            if (!found.isEmpty()) {
                capacity = found.first().field(timetable::column::kCapacite).toInt16();
            }
        });
    }
    return capacity;
}

} // namespace lookup
