#pragma once

#include "db/TextQuestion.h"

#include <QString>
#include <QStringList>
#include <vector>

/// Statements that ask which texts are equal where a column is compared with them, as pure text
/// functions. Each row that they find is the number of a question, the numbers of some of its texts
/// (counted from 1, separated by commas) that are equal, and how many these are. Empty where no
/// question has two texts to compare.
namespace db
{

[[nodiscard]] QString sqliteEqualTextsSql(const std::vector<TextQuestion>& questions);

enum class TextColumns {
    AsTheyAre,
    InUnicode, ///< turned into it: their usual collation there decides
};
/// For MariaDB and MySQL. A server refuses texts that a column's character set cannot hold.
[[nodiscard]] QString serverEqualTextsSql(const std::vector<TextQuestion>& questions,
                                          TextColumns columns);

/// For a product that compares literals only while it reads a table's rows: a query for each pair
/// of texts of one question that could be equal, joined to as many statements as that takes; none
/// where no two are alike. Alike are texts with the same letters and digits, whatever their case,
/// accents, blanks and signs; others no such product takes for equal. What a text holds behind a
/// null character cannot be asked: it equals no other.
[[nodiscard]] QStringList pairedEqualTextsSql(const std::vector<TextQuestion>& questions);

} // namespace db
