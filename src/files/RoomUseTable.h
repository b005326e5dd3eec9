#pragma once

#include "files/AnswerTable.h"

namespace files
{

/// Fills the table with how much the rooms are used: the whole, the grid of days and slots (in a
/// spreadsheet a row for each slot), the zones, the rooms, and how each figure is reckoned.
void addRoomUse(AnswerTable& table, const timetable::Timetable& timetable,
                const answers::RoomUse& use, TableUse tableUse);

} // namespace files
