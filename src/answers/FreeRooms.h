#pragma once

#include "answers/RoomFilter.h"
#include "timetable/Occupancy.h"

#include <vector>

namespace answers
{

/// "Which rooms are free then?"
struct FreeRoomsQuestion {
    std::vector<timetable::When> days; ///< free on all of them; at least one
    timetable::TimeSpan span;          ///< longer than nothing
    int places = 0;                    ///< at least
    RoomFilter rooms;
};

struct FreeRoom {
    timetable::RoomId room;
    /// Free on all the days, around the asked time: from the end of what is there before, or the
    /// day's first slot, to the beginning of what comes next, or the end of the day's last slot.
    timetable::TimeSpan stretch;

    friend bool operator==(const FreeRoom&, const FreeRoom&) = default;
};

/// A room that is not free, and why.
struct HeldRoom {
    timetable::RoomId room;
    std::vector<timetable::HoldingId>
        by; ///< each once, in the order of the days and of their starts

    friend bool operator==(const HeldRoom&, const HeldRoom&) = default;
};

/// Rooms of the room table with enough places, each in one of the lists.
struct FreeRooms {
    std::vector<FreeRoom> rooms;   ///< those with just enough places first, then by name
    std::vector<HeldRoom> taken;   ///< by name
    std::vector<HeldRoom> unknown; ///< by name: held on one of the days at nobody knows what time
};

[[nodiscard]] FreeRooms freeRooms(const timetable::Occupancy& occupancy,
                                  const FreeRoomsQuestion& question);

} // namespace answers
