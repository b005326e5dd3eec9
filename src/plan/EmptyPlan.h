#pragma once

#include "plan/PlanContent.h"
#include "plan/PlanState.h"

#include <QString>

namespace plan
{

/// Why the plan shows no box, in a French sentence or two for its middle: no room is chosen, the
/// page begins behind the last one, the day has no courses. "À montrer" where the timetable has
/// rows there that the choice leaves out, such as those of the other week. Empty where there is a
/// box, while rows are still to come, and where something could not be read: that is told
/// elsewhere.
[[nodiscard]] QString emptyPlanReason(const PlanState& state, const PlanContent& content);

} // namespace plan
