#pragma once

#include "db/Recordset.h"

#include <QStringList>
#include <vector>

namespace db
{

class Session;

/// Opens queries, each without its "Select", as one statement joined by "union all". Returns the
/// rows of each, in the order in which the database finds them, a number put before their first
/// column; fewer record sets than queries when not so many can be joined. Error: any database
/// error.
[[nodiscard]] std::vector<Recordset> openJoined(const QStringList& queries, Session& session);

} // namespace db
