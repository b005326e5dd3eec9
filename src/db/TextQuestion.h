#pragma once

#include <QString>
#include <vector>

namespace db
{

/// "Which of these texts are equal where that column is compared with them?"
struct TextQuestion {
    QString table;
    QString column;
    std::vector<QString> texts; ///< each once
};

/// The answer: for each text the number of the first one that it is equal to, its own where it is
/// the first itself.
using TextGroups = std::vector<int>;

} // namespace db
