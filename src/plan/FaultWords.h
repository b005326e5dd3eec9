#pragma once

#include "plan/PlanContent.h"

#include <QString>
#include <QStringList>

/// What could not be read of a plan, in French words, for whoever looks at it.
namespace plan
{

/// Which names the plan lacks because a statement cannot hold them, and how to mend it; empty
/// without any.
[[nodiscard]] QString unheldNames(const std::vector<lookup::ReadFault>& faults);

/// One sentence about all that is missing, for a line above or below the plan; empty where nothing
/// is. `failingSince` of the content is told as a time, of another day with its date.
[[nodiscard]] QString faultSentence(const PlanContent& content);

/// The database's own words about what failed, each once, a line each.
[[nodiscard]] QString faultDetails(const PlanContent& content);

} // namespace plan
