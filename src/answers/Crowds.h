#pragma once

#include "answers/ClashGroups.h"
#include "answers/HoldingFacts.h"

#include <span>
#include <vector>

namespace answers
{

/// When the students of the classes that are in a room together outnumber its places: at one
/// moment, in week A or in week B, each class once. `held` is what holds the room on a day, by
/// start and all with a known time; `facts` are those of all holdings. Nothing for a room without
/// places, and where the students cannot be read.
[[nodiscard]] std::vector<ClashGroup> crowds(const timetable::Occupancy& occupancy,
                                             const std::vector<HoldingFacts>& facts,
                                             std::span<const timetable::HoldingId> held,
                                             int places);

} // namespace answers
