#pragma once

#include "db/SqlDialect.h"

#include <QString>

/// Where statements find what is known of a class: what follows the columns that they select.
namespace lookup
{

/// The students registered in the class, as " from" with its condition.
[[nodiscard]] QString fromStudentsOf(const QString& className, const db::SqlDialect& dialect);

/// The rows that describe the class, likewise.
[[nodiscard]] QString fromClass(const QString& className, const db::SqlDialect& dialect);

/// The whole statements that ask about one class.
[[nodiscard]] QString studentsSql(const QString& className, const db::SqlDialect& dialect);
[[nodiscard]] QString classSql(const QString& className, const db::SqlDialect& dialect);

} // namespace lookup
