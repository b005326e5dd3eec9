#pragma once

#include "demo/Model.h"

#include <vector>

namespace demo
{

/// The teaching periods of a faculty. The first one contains the reference date and the three
/// weeks after it, whenever in the year that is; the second follows it, and all others go back
/// through the semesters before. Their names are unique.
[[nodiscard]] std::vector<Period> periodsAround(QDate reference, int count);

/// The Monday of the date's week.
[[nodiscard]] QDate mondayOf(QDate date);

} // namespace demo
