#pragma once

#include <QString>

/// What SQLite does not speak of the Access dialect, as a pure text function.
namespace db
{

/// The statement with Access's own forms turned into SQLite's, outside quoted texts and names only:
/// #03/15/07# becomes '2007-03-15' and ISNULL(x) becomes (x IS NULL). Whatever is not understood
/// stays, for the database to refuse.
[[nodiscard]] QString adaptToSqlite(const QString& sql);

} // namespace db
