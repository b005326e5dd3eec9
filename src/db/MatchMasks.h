#pragma once

#include "db/Recordset.h"

#include <QString>
#include <QStringList>
#include <vector>

namespace db
{

/// Lets one query answer many questions: for every row that it returns, the database itself tells
/// which of a list of conditions the row meets. What equals what stays the database's business.
///
/// The answers travel as the bits of a few number columns in front of the row's own.
class MatchMasks
{
public:
    /// `conditions` are SQL expressions on the row's columns, as they would stand after "where".
    explicit MatchMasks(QStringList conditions);

    [[nodiscard]] bool isEmpty() const { return m_conditions.isEmpty(); }
    /// How many columns `selectList` makes.
    [[nodiscard]] int columnCount() const;
    /// The mask columns, separated by commas; stands right after "select".
    [[nodiscard]] QString selectList() const;
    /// "At least one of the conditions", in parentheses.
    [[nodiscard]] QString anyOf() const;
    /// Positions of the conditions that the row meets; its masks start at column `firstColumn`.
    /// Error: any that reading a number raises.
    [[nodiscard]] std::vector<int> matches(const Row& row, int firstColumn) const;

private:
    QStringList m_conditions;
};

/// Whether a text can stand between single quotes as it is, in every dialect: no quote ends it and
/// no backslash hides one.
[[nodiscard]] bool isPlainLiteral(const QString& text);

} // namespace db
