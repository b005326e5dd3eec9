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

bool Narrowing::isInTime(const Occupancy& occupancy, int itsDay, QDate itsDate,
                         timetable::Week itsWeeks) const
{
    const auto isOnDate = [&] {
        if (itsDate.isValid()) {
            return itsDate == date;
        }
        const auto& period = occupancy.timetable().period();
        return itsDay == timetable::dayOf(date) && (!period || period->holds(date));
    };
    return (!day || itsDay == *day) && (!date.isValid() || isOnDate()) &&
           timetable::shareWeek(itsWeeks, weeks);
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
        const auto isInTimeOf = [&](const auto& thing) {
            return isInTime(occupancy, thing.day, thing.date, thing.weeks);
        };
        const bool isWantedTime = clash.kind == ClashKind::UnknownRoom && !holders.empty()
                                      ? std::any_of(holders.begin(), holders.end(), isInTimeOf)
                                      : isInTimeOf(clash);
        return !isWantedRoom || !isWantedTime;
    });
}

} // namespace answers
