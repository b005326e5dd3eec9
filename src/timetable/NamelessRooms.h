#pragma once

#include "timetable/Meeting.h"
#include "timetable/Room.h"
#include "timetable/Timetable.h"

#include <span>
#include <unordered_map>
#include <vector>

namespace timetable
{

/// Sees to rooms whose name is empty: in some timetables most room columns hold an empty text where
/// others hold a null, so such a text would name them in nearly every row. The plan finds the rows
/// of such a room by `Salle` alone, and then shows all of a row's parts that name it. So do
/// meetings: their other columns name it where `Salle` does, and else they do not.
class NamelessRooms
{
public:
    /// What the texts of the room columns name; more are added.
    NamelessRooms(std::span<const Room> rooms, std::vector<RoomName>& names);

    /// Whether there is such a room.
    [[nodiscard]] bool isAny() const { return !m_rooms.empty(); }
    /// Takes them out of the columns of a meeting that do not name them.
    void settle(Meeting& meeting);

private:
    [[nodiscard]] bool names(RoomNameId name) const;
    [[nodiscard]] RoomNameId without(RoomNameId name);

    std::vector<RoomName>& m_names;
    std::vector<RoomId> m_rooms;
    std::unordered_map<RoomNameId, RoomNameId> m_without; ///< the same names, these rooms aside
};

} // namespace timetable
