#pragma once

#include "db/Recordset.h"

#include <QString>
#include <optional>
#include <vector>

/// What a database answers when it is asked to explain a statement, read for one purpose: do two
/// queries read a table in the same order, so that rows that both find come in the same order?
///
/// The queries in question compare columns of one table with given texts and numbers, by `=` or
/// `in`, and ask for no order. They select one column, so that one statement can join many at
/// little cost. A covering index, which holds all columns that such a query names, may be read only
/// for that reason, and would not be for whole rows: such a path is not told. One that is not
/// chosen even so would be chosen still less for whole rows.
namespace db
{

/// How one of the joined queries reads its table.
struct AccessPath {
    /// The table that is read: of a view the one behind it. Empty when not told.
    QString table;
    /// Equal texts mean the same order: a scan of the whole table, or the same index by the same
    /// leading columns, each of them fixed. Within the rows that agree in these columns the order
    /// is then the index's, whatever else the queries ask. Empty for a path of any other kind.
    QString path;
    /// The database says that no other index could serve the query.
    bool isOnlyOne = false;

    friend bool operator==(const AccessPath&, const AccessPath&) = default;
};

/// A path for each joined query; nothing when the answer does not read as that.
using AccessPaths = std::optional<std::vector<AccessPath>>;

/// From the rows of SQLite's "explain query plan", which tells neither the table behind a view nor
/// what else could serve.
[[nodiscard]] AccessPaths sqliteAccessPaths(const Recordset& explained);
/// From the rows of MariaDB's "explain partitions" or MySQL's "explain".
[[nodiscard]] AccessPaths mariaDbAccessPaths(const Recordset& explained);

} // namespace db
