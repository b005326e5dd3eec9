#pragma once

#include <QString>
#include <QStringList>
#include <vector>

namespace db
{

/// "How many rows does each of these texts find in that column?"
struct CountQuestion {
    QString table;
    QString column;
    QString valueColumn; ///< whose values in these rows are asked for, too; empty for none
};

/// What the columns of the statements' rows are, in their order. A row is a group of texts that the
/// column takes for equal, with the table's rows that equal them.
enum class TextCountColumn {
    Question, ///< its number
    Members,  ///< the numbers of the texts, counted from 1, separated by commas; null for none
    Rows,     ///< of the table
    Least,    ///< value in these rows; means nothing where `Values` is 0
    Greatest,
    Values,  ///< how many of the rows have a value
    OddRows, ///< not 0 where the column does not compare as texts do
};

/// The quick statement for SQLite, where the rows spell the texts as they are given: in the place
/// of `Members` a group of rows has one of its spellings, and texts without rows are not there.
/// Behind the last question's number, in the order of the questions, come the groups of several
/// given texts that are equal, by their numbers.
[[nodiscard]] QString sqliteSpelledCountsSql(const std::vector<CountQuestion>& questions,
                                             const QStringList& literals);

/// The statement that answers such questions about texts, given as literals, each of which is one;
/// an answer holds the texts that find no row, too.
[[nodiscard]] QString sqliteTextCountsSql(const std::vector<CountQuestion>& questions,
                                          const QStringList& literals);
/// For MariaDB and MySQL. A server refuses texts that a column's character set cannot hold.
[[nodiscard]] QString serverTextCountsSql(const std::vector<CountQuestion>& questions,
                                          const QStringList& literals);

} // namespace db
