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

/// What holds a room and until when, in French: "L2 GE A, L2 GE B, Durand, jusqu’à 11h00"; classes
/// that are there together are told together. What is not of every week says so, what is no course
/// its kind and date. Requires: their time is known.
[[nodiscard]] QString holdersWords(const timetable::Occupancy& occupancy,
                                   const std::vector<timetable::HoldingId>& ids);

} // namespace answers
