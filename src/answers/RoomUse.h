#pragma once

#include "answers/RoomFilter.h"
#include "timetable/Occupancy.h"

#include <vector>

namespace answers
{

/// How much a room is used.
struct UseOfRoom {
    timetable::RoomId room;
    int places = 0;        ///< 0 where none are told
    int slots = 0;         ///< of the six days
    double held = 0;       ///< of these slots; a half where it is held in one week of the two
    double share = 0;      ///< `held` of `slots`
    double seatsShare = 0; ///< the seats taken, of its places in all slots

    friend bool operator==(const UseOfRoom&, const UseOfRoom&) = default;
};

/// How much the rooms are used in a slot.
struct UseOfSlot {
    int day = timetable::kNoDay; ///< 0 to 5, Monday to Saturday
    int slot = 0;                ///< its number
    int rooms = 0;               ///< how many there are
    double held = 0;             ///< of these rooms; a half for one that is held in one week only
    double share = 0;            ///< `held` of `rooms`

    friend bool operator==(const UseOfSlot&, const UseOfSlot&) = default;
};

/// How much of the school is used in its teaching weeks: by courses, for make-ups and exams belong
/// to none of these weeks. All shares are from 0 to 1, and 0 where there is nothing to share.
struct RoomUse {
    std::vector<UseOfRoom> rooms; ///< in the order of the room table
    std::vector<UseOfSlot> slots; ///< by day and number
    double share = 0;             ///< of all rooms in all slots
    double seatsShare = 0;        ///< of the places of all rooms in all slots
    /// Whether the students of all classes that hold a room could be read. Where not, the seats
    /// are too few and mean nothing.
    bool areSeatsKnown = true;
};

/// How much the rooms of the room table that the filter holds are used in a week; the mean of the
/// weeks A and B for `Week::Every`.
///
/// The slots are those of Monday to Saturday, a day without any of its own having Monday's. One
/// without a readable start is left out, as nobody can say who is there; one without a readable
/// end, or with one that is not behind its start, lasts as long as a usual course. A course holds
/// all slots that it shares a minute with, whatever slot its key names; one whose time is not known
/// holds none. The seats taken in a slot are the students registered in the classes of all courses
/// that hold it, each class once, and at most the room's places.
[[nodiscard]] RoomUse roomUse(const timetable::Occupancy& occupancy, timetable::Week week,
                              const RoomFilter& filter);

} // namespace answers
