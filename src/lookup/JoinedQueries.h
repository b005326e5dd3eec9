#pragma once

#include "db/Connection.h"

#include <QStringList>
#include <vector>

namespace lookup
{

/// How many queries may be joined into one: the embedded database takes 500.
inline constexpr qsizetype kMostJoined = 450;

/// Opens queries, each without its "Select", as one statement. Returns the rows of each, in the
/// order in which the database finds them, a number put before their first column; fewer record
/// sets than queries when not so many can be joined. Error: any database error.
[[nodiscard]] std::vector<db::Recordset> openJoined(db::Connection& connection,
                                                    const QStringList& queries);

} // namespace lookup
