#pragma once

#include "answers/RoomWeeks.h"
#include "answers/WeekGrid.h"

#include <QString>

namespace paint
{

/// What hatching, frames and labels in the drawing of a week mean, in French, as far as it has
/// any: "Case hachurée : rattrapage · A, B : une semaine sur deux". Else empty.
[[nodiscard]] QString weekLegend(const answers::WeekGrid& grid);
/// The same for the overview of all rooms.
[[nodiscard]] QString weekLegend(const answers::RoomWeeks& weeks);

} // namespace paint
