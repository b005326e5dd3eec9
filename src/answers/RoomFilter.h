#pragma once

#include "timetable/Room.h"

#include <QString>
#include <optional>

namespace answers
{

/// Which rooms an answer is about; a room meets all that is asked.
struct RoomFilter {
    std::optional<int> zone;
    std::optional<QString> department;

    [[nodiscard]] bool holds(const timetable::Room& room) const;
};

} // namespace answers
