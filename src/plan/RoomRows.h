#pragma once

#include "form/PlanForm.h"

namespace plan
{

/// Twips between two rows.
constexpr int kRowGap = 68;

/// Puts the labels `Salle` and `Cap` of every row into their places: one row below the other from
/// `Salle`(0) down, the places at the window's right edge.
void PlaceRoomRows(form::PlanForm& form);

} // namespace plan
