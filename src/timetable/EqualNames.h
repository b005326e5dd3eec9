#pragma once

#include "db/Connection.h"
#include "timetable/NameQuestion.h"

#include <QString>
#include <vector>

namespace timetable
{

/// Asks the database which texts it takes for equal, all questions by one statement, and by none
/// where there is nothing to compare. The texts are sent back to it as literals beside the column
/// in question, so that the column's own collation decides, as when the plan asks for a name; what
/// comes back are only the groups of several. The tables need not be read for that, and what a
/// question costs depends on its texts alone.
///
/// A server refuses texts that the column's character set cannot hold. It is asked once more then,
/// with all columns in Unicode; their usual collation there decides.
///
/// Errors: any of the database. A product that is neither SQLite nor MariaDB or MySQL refuses the
/// statement.
[[nodiscard]] std::vector<NameGroups> askEqualNames(db::Connection& connection,
                                                    const std::vector<NameQuestion>& questions);

/// To whom a statement is to be sent.
enum class NameComparison {
    Sqlite,
    Server,        ///< MariaDB or MySQL
    ServerUnicode, ///< the same, with the columns turned into Unicode
};

/// The statement. Each of its rows is the number of a question, the numbers of some of its texts
/// (counted from 1, separated by commas) that are equal, and how many these are. Empty where there
/// is nothing to compare.
[[nodiscard]] QString equalNamesSql(const std::vector<NameQuestion>& questions,
                                    NameComparison comparison);

} // namespace timetable
