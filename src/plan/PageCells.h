#pragma once

#include "db/Database.h"
#include "plan/RoomQuestion.h"

#include <QHash>
#include <QPair>
#include <QStringList>

namespace plan
{

/// The timetable rows of a page by room and slot key, as the plain statement would find them for
/// each. A cell that is not in it is to be asked for.
using PageCells = QHash<QPair<QString, QString>, db::Recordset>;

/// Fetches them with three statements at most, make-ups with two. Rooms and keys
/// are plain literals, `page` holds what all questions share.
///
/// The database itself says which row answers which question. Where several rows answer one, their
/// order matters, and none is asked for. The database is then asked how it would walk through the
/// table for these questions: when that is how it came by the page's rows, they are in order
/// already; if not, the questions are put once more, each in the plain statement's own words.
///
/// Error: any database error.
[[nodiscard]] PageCells fetchPageCells(db::Database& database, const RoomQuestion& page,
                                       const QStringList& rooms, const QStringList& keys);

} // namespace plan
