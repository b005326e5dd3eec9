#pragma once

#include "form/Colour.h"
#include "timetable/Id.h"

#include <cstddef>
#include <vector>

namespace paint
{

/// The colour of what no row of the plan has.
inline constexpr form::Colour kNoRoomColor = form::Colour::fromRgb(225, 225, 225);

/// A room's colour among those of its rows on the plan, by id; grey beyond their end.
[[nodiscard]] inline form::Colour roomColor(const std::vector<form::Colour>& colors,
                                            timetable::RoomId room)
{
    const auto position = static_cast<std::size_t>(room.isNone() ? 0 : room.index());
    return !room.isNone() && position < colors.size() ? colors[position] : kNoRoomColor;
}

} // namespace paint
