#pragma once

#include "db/Recordset.h"
#include "db/SqlDialect.h"

#include <QString>
#include <QStringList>
#include <vector>

namespace db
{

/// Lets one query answer many questions: for every row that it returns, the database itself tells
/// which of a list of texts a column of the row equals. What equals what stays the database's
/// business.
///
/// The answers travel as the bits of a few number columns in front of the row's own.
class MatchMasks
{
public:
    /// Each text is one literal (SqlDialect::isOneLiteral) and stands for what that means.
    MatchMasks(QString column, QStringList texts, const SqlDialect& dialect = SqlDialect(false));

    [[nodiscard]] const QStringList& texts() const { return m_texts; }
    /// How many columns `selectList` makes.
    [[nodiscard]] int columnCount() const;
    /// The mask columns, separated by commas; stands right after "select". `alias` begins their
    /// names.
    [[nodiscard]] QString selectList(const QString& alias) const;
    /// The condition that the column equals one of the texts; false without texts.
    [[nodiscard]] QString anyOf() const;
    /// Positions of the texts that the row's column equals; its masks start at `firstColumn`.
    /// Errors: any that reading a number raises; Overflow for one that is no mask of these texts.
    [[nodiscard]] std::vector<int> matches(const Row& row, int firstColumn) const;

private:
    QString m_column;
    QStringList m_texts;
    SqlDialect m_dialect;
};

} // namespace db
