#pragma once

#include "db/Recordset.h"

#include <QString>
#include <optional>
#include <vector>

/// What a database answers when it is asked to explain a statement, read for one purpose: do two
/// queries walk through a table the same way, so that rows that both find come in the same order?
///
/// The queries in question compare columns of one table with given texts and numbers, by `=` or
/// `in`, and ask for no order. They select one column, so that one statement can join many at
/// little cost. Where an index holds all columns that such a query names, the database may walk
/// through it only for that reason, and would not for whole rows: such a walk is not told. An index
/// that is not chosen even so would be chosen still less for whole rows.
namespace db
{

/// The way through the table of one of the joined queries.
struct AccessPath {
    /// The table that is walked through: of a view the one behind it. Empty when not told.
    QString table;
    /// Equal texts mean the same walk: the whole table, or the same index by the same leading
    /// columns, each of them fixed. Within the rows that agree in these columns the order is then
    /// the index's, whatever else the queries ask. Empty for a walk of any other kind.
    QString walk;
    /// The database says that no other index could serve the query.
    bool isOnlyWay = false;

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
