#pragma once

#include "db/TextCountsSql.h"
#include "db/Value.h"

#include <vector>

namespace db
{

class Session;

/// What one text finds.
struct TextCount {
    int rows = 0;
    /// What the value column holds in all of these rows; null where it holds nothing, and where the
    /// rows differ.
    Value value;
    bool rowsDiffer = false; ///< in their values

    friend bool operator==(const TextCount&, const TextCount&) = default;
};

/// Counts for each of the texts the rows that equal it, by one statement for all questions, two
/// where rows of SQLite spell a text otherwise: an answer for each question, in the order of the
/// texts. The texts are literals of the session's dialect (SqlDialect::isOneLiteral) and stand for
/// what these mean; the column's own collation decides what equals what, also among texts that no
/// row has.
///
/// Errors: any of the database; StatementRefused on a product that knows no such statement, and for
/// a column that does not compare as texts do.
[[nodiscard]] std::vector<std::vector<TextCount>>
countTexts(const std::vector<CountQuestion>& questions, const QStringList& texts, Session& session);

} // namespace db
