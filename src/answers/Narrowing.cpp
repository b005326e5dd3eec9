#include "answers/Narrowing.h"

#include <algorithm>

namespace answers
{

using timetable::HoldingId;
using timetable::Occupancy;

bool Narrowing::isInRooms(const Occupancy& occupancy, const timetable::Holding& holding) const
{
    const std::vector<timetable::RoomId> held = occupancy.roomsOf(holding);
    return isAnyRoomWanted() || std::any_of(held.begin(), held.end(), [&](timetable::RoomId room) {
               return rooms.holds(occupancy.timetable().room(room));
           });
}

bool Narrowing::isOnDate(const Occupancy& occupancy, const Clash& clash) const
{
    if (!date.isValid()) {
        return true;
    }
    if (clash.date.isValid()) {
        return clash.date == date;
    }
    const auto& period = occupancy.timetable().period();
    return clash.day == timetable::dayOf(date) && (!period || period->holds(date));
}

void Narrowing::apply(const Occupancy& occupancy, std::vector<HoldingId>& items) const
{
    std::erase_if(items, [&](HoldingId id) {
        const timetable::Holding& holding = occupancy.holding(id);
        return (day && holding.day != *day) || !isInRooms(occupancy, holding);
    });
}

void Narrowing::apply(const Occupancy& occupancy, std::vector<Clash>& clashes) const
{
    std::erase_if(clashes, [&](const Clash& clash) {
        const std::vector<timetable::Holding> holders = holdersOf(occupancy, clash);
        const bool isWantedRoom =
            isAnyRoomWanted() ||
            std::any_of(holders.begin(), holders.end(), [&](const timetable::Holding& holding) {
                return isInRooms(occupancy, holding);
            });
        return !isWantedRoom || (day && clash.day != *day) || !isOnDate(occupancy, clash) ||
               !timetable::shareWeek(clash.weeks, weeks);
    });
}

} // namespace answers
