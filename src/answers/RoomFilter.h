#pragma once

#include "timetable/Timetable.h"

#include <QString>
#include <optional>
#include <vector>

namespace answers
{

/// Which rooms an answer is about; a room meets all that is asked.
struct RoomFilter {
    std::optional<int> zone;
    std::optional<QString> department;
    /// All spellings of the department (see `departmentSpellings`). None: it is spelt as above.
    std::vector<QString> spellings{};

    [[nodiscard]] bool holds(const timetable::Room& room) const;
};

/// How the room table spells the department that it spells like this, too: which spellings are one
/// the database has told. Empty where it has no such spelling.
[[nodiscard]] std::vector<QString> departmentSpellings(const timetable::Timetable& timetable,
                                                       const QString& department);

} // namespace answers
