#include "timetable/NamelessRooms.h"

#include <algorithm>

namespace timetable
{

NamelessRooms::NamelessRooms(std::span<const Room> rooms, std::vector<RoomName>& names)
    : m_names(names)
{
    for (std::size_t index = 0; index < rooms.size(); ++index) {
        if (rooms[index].name.isEmpty()) {
            m_rooms.emplace_back(static_cast<int>(index));
        }
    }
}

bool NamelessRooms::names(RoomNameId name) const
{
    if (name.isNone()) {
        return false;
    }
    const std::vector<RoomId>& rooms = m_names[static_cast<std::size_t>(name.index())].rooms;
    return std::find_first_of(rooms.begin(), rooms.end(), m_rooms.begin(), m_rooms.end()) !=
           rooms.end();
}

/// A server may take an empty text for equal to one of blanks, which another room may be called.
RoomNameId NamelessRooms::without(RoomNameId name)
{
    const auto [found, isNew] = m_without.emplace(name, RoomNameId());
    if (isNew) {
        RoomName other = m_names[static_cast<std::size_t>(name.index())];
        std::erase_if(other.rooms, [this](RoomId room) {
            return std::find(m_rooms.begin(), m_rooms.end(), room) != m_rooms.end();
        });
        if (!other.rooms.empty()) {
            found->second = RoomNameId(static_cast<int>(m_names.size()));
            m_names.push_back(std::move(other));
        }
    }
    return found->second;
}

void NamelessRooms::settle(Meeting& meeting)
{
    if (names(meeting.part(Part::A).room)) {
        return;
    }
    for (MeetingPart& part : meeting.parts) {
        for (RoomNameId* name : {&part.room, &part.otherRoom}) {
            if (names(*name)) {
                *name = without(*name);
            }
        }
    }
}

} // namespace timetable
