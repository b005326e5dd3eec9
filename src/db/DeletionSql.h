#pragma once

#include <QString>
#include <optional>

namespace db
{

/// Statements that delete one of the rows that a query finds, as pure text functions. What they add
/// behind the condition stands on a line of its own: a name in the condition may begin a comment.
class DeletionSql
{
public:
    /// `sql` is a "select * from" one table, with or without a condition, without ordering.
    /// Error: InvalidProcedureCall for any other statement.
    explicit DeletionSql(const QString& sql);

    /// MySQL: deletes the first row found.
    [[nodiscard]] QString deletingFirst() const;

    /// SQLite: the query with the row's identity as an additional first column. Everything else
    /// stays as it is, so that the database finds the same rows in the same order.
    [[nodiscard]] QString selectingRowId() const;
    /// SQLite: deletes the row with that identity, provided that the query still finds it:
    /// identities are used again, and another program may have been quicker.
    [[nodiscard]] QString deletingRowId(const QString& rowId) const;

private:
    QString m_table;
    QString m_condition; // empty when every row is meant
};

} // namespace db
