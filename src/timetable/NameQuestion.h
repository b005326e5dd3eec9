#pragma once

#include "db/TextQuestion.h"
#include "timetable/SqlName.h"
#include "timetable/TextPool.h"

#include <functional>
#include <vector>

namespace timetable
{

/// "Which of these texts are equal where that column is compared with them?"
struct NameQuestion {
    SqlName table;
    SqlName column;
    TextPool texts;
};

/// The answer.
using NameGroups = db::TextGroups;

/// Whoever answers such questions; the answers are in their order.
using AskNames = std::function<std::vector<NameGroups>(const std::vector<NameQuestion>&)>;

} // namespace timetable
