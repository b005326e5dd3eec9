#include "lookup/ClassSizes.h"

#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

namespace lookup
{

std::int16_t SlotIndex(const QString& seanceKey)
{
    QString digits;
    for (const QChar character : seanceKey) {
        if (character >= u'0' && character <= u'9') {
            digits.append(character);
        }
    }
    return runtime::nearestInt16(runtime::leadingNumber(digits) - 1);
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
                capacity = found.first().field(QStringLiteral("Capacite")).toInt16();
            }
        });
    }
    return capacity;
}

} // namespace lookup
