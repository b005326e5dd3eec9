#pragma once

#include "db/Connection.h"
#include "timetable/NameQuestion.h"

#include <vector>

namespace timetable
{

/// Asks the database which names it takes for equal, all questions by one statement, and by none
/// where there is nothing to compare; each column's own collation decides, as when the plan asks
/// for a name (see db/EqualTexts.h).
/// Errors: any of the database; StatementRefused on a product that is neither SQLite nor MariaDB or
/// MySQL.
[[nodiscard]] std::vector<NameGroups> askEqualNames(db::Connection& connection,
                                                    const std::vector<NameQuestion>& questions);

} // namespace timetable
