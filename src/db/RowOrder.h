#pragma once

#include <QString>
#include <vector>

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

/// The conditions of a narrow query, as they stand after "WHERE". They compare columns with texts
/// and numbers by `=`.
struct NarrowQuery {
    QString choice; ///< alternatives in parentheses; few differ among many queries
    QString point;  ///< all else, joined by "and"; few differ among many queries

    [[nodiscard]] QString condition() const { return choice + QStringLiteral(" and") + point; }

    friend bool operator==(const NarrowQuery&, const NarrowQuery&) = default;
};

/// A query that has brought the rows of several narrow ones, and these.
struct WideQuery {
    QString table;
    QString column;    ///< one of the table's that no index of the points would hold
    QString condition; ///< as it stands after "WHERE"; what it compares it compares by `=` or `in`
    std::vector<NarrowQuery> parts; ///< at least one
};

} // namespace db
