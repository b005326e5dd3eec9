#pragma once

#include "db/Recordset.h"

#include <array>
#include <cstdint>

namespace context
{

/// The numbers of places of all rooms, by their position in the list of rooms.
class RoomPlaces
{
public:
    /// Rooms that the plan can hold.
    static constexpr int kMaxRooms = 256;

    /// Takes the rooms in their order; a room without a number has 0 places.
    /// Errors: SubscriptOutOfRange for a 257th room; TypeMismatch or Overflow for places that are
    /// no 16-bit number.
    void read(const db::Recordset& rooms);

    /// Places of a room, `index` from 0. Error: SubscriptOutOfRange for a position of 256 or more.
    [[nodiscard]] std::int16_t at(int index) const;

private:
    std::array<std::int16_t, kMaxRooms> m_places{};
};

} // namespace context
