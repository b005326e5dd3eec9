#pragma once

#include "db/Recordset.h"

#include <QStringList>
#include <optional>

/// What a database answers when it is asked to explain a statement, read for one purpose: do two
/// queries walk through a table the same way, so that rows that both find come in the same order?
///
/// The queries in question compare columns of one table with given texts and numbers, by `=` or
/// `in`, and ask for no order. One text stands for each of the joined queries; equal texts mean the
/// same walk: the whole table, or the same index by the same leading columns, each of them fixed.
/// Within the rows that agree in these columns the order is then the index's, whatever else the
/// queries ask. Nothing is told when a line is of any other kind.
namespace db
{

/// From the rows of SQLite's "explain query plan".
[[nodiscard]] std::optional<QStringList> sqliteAccessPaths(const Recordset& explained);
/// From the rows of MariaDB's or MySQL's "explain".
[[nodiscard]] std::optional<QStringList> mySqlAccessPaths(const Recordset& explained);

} // namespace db
