#pragma once

#include "lookup/RowSource.h"

#include <QString>
#include <cstdint>

namespace lookup
{

/// Index of the slot's label in `Label1`: all digits of the key read as one number, less one.
/// Lundi3 gives 2, a key without digits -1. Error: Overflow outside the 16-bit range.
[[nodiscard]] std::int16_t SlotIndex(const QString& seanceKey);

/// Number of students registered in the class.
/// Errors: Overflow beyond the 16-bit range, any database error.
[[nodiscard]] std::int16_t StudentCount(RowSource& source, const QString& className);

/// Declared size of the class; 0 without a class name or when no value can be read.
[[nodiscard]] std::int16_t ClassCapacity(RowSource& source, const QString& className);

} // namespace lookup
