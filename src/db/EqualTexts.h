#pragma once

#include "db/TextQuestion.h"

#include <vector>

namespace db
{

class Session;

/// Asks the database which texts it takes for equal, all questions by one statement, and by none
/// where there is nothing to compare. The texts are sent back to it as literals beside the column
/// in question, so that the column's own collation decides; what comes back are only the groups of
/// several. The tables need not be read for that, and what a question costs depends on its texts
/// alone. Access reads them, and is asked about pairs that look alike, a few dozen a statement.
///
/// A server refuses texts that the column's character set cannot hold. It is asked once more then,
/// with all columns in Unicode; their usual collation there decides.
///
/// Errors: any of the database.
[[nodiscard]] std::vector<TextGroups> equalTexts(const std::vector<TextQuestion>& questions,
                                                 Session& session);

} // namespace db
