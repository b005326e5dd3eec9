#pragma once

#include "db/Recordset.h"

#include <QString>
#include <optional>
#include <vector>

/// What a database answers when it is asked to explain a statement, read for one purpose: do two
/// queries walk through a table the same way, so that rows that both find come in the same order?
///
/// The queries in question compare columns of one table with given texts and numbers, by `=` or
/// `in`, and ask for no order. They select nothing of the table, so that one statement can join
/// many at little cost: where that would let the database walk through an index that holds all of
/// their columns, which it might not do for whole rows, nothing is told.
namespace db
{

/// The way through the table of one of the joined queries.
struct AccessPath {
    /// Equal texts mean the same walk: the whole table, or the same index by the same leading
    /// columns, each of them fixed. Within the rows that agree in these columns the order is then
    /// the index's, whatever else the queries ask.
    QString walk;
    /// The database says that no other index could serve the query.
    bool isOnlyWay = false;

    friend bool operator==(const AccessPath&, const AccessPath&) = default;
};

/// A path for each joined query; nothing when a line of the answer is of any other kind.
using AccessPaths = std::optional<std::vector<AccessPath>>;

/// From the rows of SQLite's "explain query plan", which never tells what else could serve.
[[nodiscard]] AccessPaths sqliteAccessPaths(const Recordset& explained);
/// From the rows of MariaDB's or MySQL's "explain".
[[nodiscard]] AccessPaths mySqlAccessPaths(const Recordset& explained);

} // namespace db
