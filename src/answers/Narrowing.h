#pragma once

#include "answers/Clashes.h"
#include "answers/RoomFilter.h"

#include <QDate>
#include <optional>
#include <vector>

namespace answers
{

/// What of an answer somebody wants to see.
struct Narrowing {
    RoomFilter rooms;                               ///< only what is in one of these
    std::optional<int> day;                         ///< only what is on that day, 0 to 6
    timetable::Week weeks = timetable::Week::Every; ///< of clashes: only those of these weeks
    QDate date; ///< of clashes: only those that are on that date; no valid date: any

    /// Keeps of the holdings what is wanted.
    void apply(const timetable::Occupancy& occupancy,
               std::vector<timetable::HoldingId>& items) const;
    /// The same of clashes: one stays where it is about a room that is wanted. A clash of the
    /// teaching weeks is on a date if this is one of the period, of its day and of its week; one
    /// over an unknown room where some of its holders are.
    void apply(const timetable::Occupancy& occupancy, std::vector<Clash>& clashes) const;

private:
    [[nodiscard]] bool isInRooms(const timetable::Occupancy& occupancy,
                                 const timetable::Holding& holding) const;
    /// Whether something is wanted that is of that day of the week, or of that date.
    [[nodiscard]] bool isInTime(const timetable::Occupancy& occupancy, int itsDay, QDate itsDate,
                                timetable::Week itsWeeks) const;
    [[nodiscard]] bool isAnyRoomWanted() const { return !rooms.zone && !rooms.department; }
};

} // namespace answers
