#pragma once

#include "db/Recordset.h"

#include <QStringList>
#include <vector>

namespace db
{

class Session;

/// Opens queries, each without its "Select", joined by "union all" into one statement, or into a
/// few where not so many can be joined. Returns the rows of each, in the order in which the
/// database finds them, a number put before their first column. Error: any database error.
[[nodiscard]] std::vector<Recordset> openJoined(const QStringList& queries, Session& session);

} // namespace db
