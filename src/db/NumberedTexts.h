#pragma once

#include <QString>
#include <QStringList>
#include <cstddef>

/// Lists of texts within a statement, numbered from 1: pieces of statements that compare them with
/// a column.
namespace db
{

/// The literals with their numbers as the rows of "values", on SQLite, which takes any number of
/// them.
[[nodiscard]] QString sqliteNumberedRows(const QStringList& literals);

/// A query whose columns are `number` and `text`, a row for each literal, on a server. The column
/// stands among the literals of one function: only then are they turned into its character set.
/// Not every server knows rows of values, and a query per text takes MariaDB three times as long.
/// `column`: what names the column in `table`, or an expression of it.
[[nodiscard]] QString serverNumberedRows(const QStringList& literals, const QString& column,
                                         const QString& table);

} // namespace db
