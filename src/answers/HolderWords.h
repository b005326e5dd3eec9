#pragma once

#include "timetable/Occupancy.h"

#include <QString>
#include <vector>

namespace answers
{

/// Why nobody knows when these hold their room, in French: "L2 GE A (Lundi9) : ni heure de début,
/// ni séance de ce nom dans la journée". Requires: their time is not known.
[[nodiscard]] QString whyUnknown(const timetable::Occupancy& occupancy,
                                 const std::vector<timetable::HoldingId>& ids);

} // namespace answers
