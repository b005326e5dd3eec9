#pragma once

#include <QString>
#include <QStringList>

/// Several narrow queries on a table can be answered by one wide query whose rows are then sorted
/// into theirs. What that leaves open is the order within each: nobody asks for one, and the first
/// row counts.
namespace db
{

/// Where the rows of the narrow queries stand among those of the wide one.
enum class RowOrder {
    Same,   ///< in the order in which each query alone would bring them
    Other,  ///< perhaps in another one; asked again, joined by "union all", each query has its own
    Untold, ///< perhaps in another one, and joined queries may lose theirs, too: one asks each
            ///< alone
};

/// A query that has brought the rows of several narrow ones, and these.
struct WideQuery {
    QString table;
    QString column;    ///< one of the table's that no index of the parts' slots would hold
    QString condition; ///< as it stands after "WHERE"; what it compares it compares by `=` or `in`
    /// The conditions of the narrow queries, as they stand after "WHERE"; at least one. They
    /// compare columns with texts and numbers by `=`.
    QStringList parts;
};

} // namespace db
