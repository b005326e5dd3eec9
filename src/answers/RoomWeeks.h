#pragma once

#include "answers/RoomFilter.h"
#include "answers/WeekBox.h"
#include "answers/WeekDay.h"

#include <QString>
#include <array>
#include <vector>

namespace answers
{

/// The week of one of many rooms.
struct RoomWeek {
    timetable::RoomId room;
    QString name;
    int places = 0; ///< 0 where none are told
    /// By day, start and week. Lanes divide the row's height: where both weeks are asked about,
    /// what is held in week A has the upper half, and in week B the lower, even alone.
    std::vector<WeekBox> boxes;
    /// For each day, why it is not known when the room is held; empty where it is.
    std::array<QString, kShownDays> unknown;
};

/// The week of all rooms as it is drawn: a row per room, six days side by side.
struct RoomWeeks {
    WeekDays days;              ///< each with an axis of its own
    std::vector<RoomWeek> rows; ///< in the order of the room table
    /// Whether there are more rooms, and one of all has something: true of sheets.
    bool isPart = false;

    /// Whether no room has anything.
    [[nodiscard]] bool isEmpty() const;
};

/// The rooms of the room table that the filter holds; `items` are what holds a room in that week
/// (`weekOfAll`). What is in two rooms is in both rows.
[[nodiscard]] RoomWeeks roomWeeks(const timetable::Occupancy& occupancy, const AskedWeek& week,
                                  const std::vector<timetable::HoldingId>& items,
                                  const RoomFilter& filter = {});

} // namespace answers
