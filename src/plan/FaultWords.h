#pragma once

#include "plan/PlanContent.h"

#include <QString>
#include <QStringList>

/// What could not be read of a plan, in French words, for whoever looks at it.
namespace plan
{

/// How many names a line above or below the plan has room for.
inline constexpr qsizetype kNamesInALine = 5;

/// Which names the plan lacks because a statement cannot hold them, and how to mend it; empty
/// without any. Of more than `most` names, the first ones and how many there are besides.
[[nodiscard]] QString unheldNames(const std::vector<lookup::ReadFault>& faults, qsizetype most);

/// One sentence about all that is missing, for a line above or below the plan; empty where nothing
/// is. It tells `mostNames` names at most. `failingSince` of the content is told as a time, of
/// another day with its date.
[[nodiscard]] QString faultSentence(const PlanContent& content,
                                    qsizetype mostNames = kNamesInALine);

/// The database's own words about what failed, each once, a line each.
[[nodiscard]] QString faultDetails(const PlanContent& content);

} // namespace plan
