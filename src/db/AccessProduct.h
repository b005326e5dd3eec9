#pragma once

#include "db/Product.h"

namespace db
{

/// Access, and whatever else is neither SQLite nor a server of the MySQL kind.
class AccessProduct : public Product
{
public:
    /// The statement as it is. Error: StatementRefused for one that chooses by "case", which Access
    /// does not have: whoever can ask otherwise does so at once, and nothing is sent in vain.
    [[nodiscard]] QString adapted(const QString& sql) const override;
    /// Through a keyset-driven cursor that compares values, the one kind through which the driver
    /// writes.
    bool deleteFirst(const QString& sql, Session& session) const override;

    [[nodiscard]] std::optional<QStringList>
    equalTextsSql(const std::vector<TextQuestion>& questions, TextColumns columns) const override;

    [[nodiscard]] SQLSMALLINT cTypeOf(SQLSMALLINT type) const override;
    /// A date where the column's type is one: a text would be read by the system's language. Two
    /// digits of a year are read there as in a literal, 1930 to 2029, so that the two agree.
    /// Elsewhere the dialect's text.
    [[nodiscard]] Value dateToWrite(QDate date, const ColumnName& column,
                                    Session& session) const override;
};

} // namespace db
