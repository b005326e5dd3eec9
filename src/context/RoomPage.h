#pragma once

#include <cstdint>

namespace context
{

/// Where the plan stands in the list of rooms.
struct RoomPage {
    /// Highest row that holds a room: the plan draws rows 1 to `RowsShown`; -1 without any room.
    std::int16_t RowsShown = 0;
    /// Position in the list of rooms that the current page starts from, 0 on the first page.
    std::int32_t PageOffset = 0;
    /// The page buttons' copy of the page start.
    std::int32_t PageStart = 0;
    /// Rooms counted at start-up: the paging bound. Not recounted when the room filter changes.
    std::int32_t RoomTotal = 0;
};

} // namespace context
