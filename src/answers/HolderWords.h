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

/// Why a meeting that names a room holds it on no day: "« Mradi2 » ne nomme aucun jour".
[[nodiscard]] QString whyUnplaced(const timetable::Occupancy& occupancy,
                                  const timetable::Unplaced& unplaced);

/// All such meetings of a timetable: "1 séance n’a pas de jour et n’occupe donc rien : L1 A, Amphi
/// B (« Mradi2 » ne nomme aucun jour)"; of many the first three. Nothing where there are none.
[[nodiscard]] QString unplacedWords(const timetable::Occupancy& occupancy);

/// What holds a room and until when, in French: "L2 GE A, L2 GE B, Durand, jusqu’à 11h00"; classes
/// that are there together are told together. What is not of every week says so, what is no course
/// its kind and date. Requires: their time is known.
[[nodiscard]] QString holdersWords(const timetable::Occupancy& occupancy,
                                   const std::vector<timetable::HoldingId>& ids);

} // namespace answers
