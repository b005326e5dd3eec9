#pragma once

#include "form/PlanForm.h"
#include "plan/PlanContent.h"

#include <optional>

namespace plan
{

/// Twips between two rows.
constexpr int kRowGap = 68;
/// Twips between the end of the time axis and the places.
constexpr int kAfterAxis = 60;

/// Puts the labels `Salle` and `Cap` of every row into their places: one row below the other from
/// `Salle`(0) down, the places at the window's right edge. Where there is no row 0, row 1 takes its
/// place.
void PlaceRoomRows(form::PlanForm& form);

/// Whether the page has room for a row of its content: a row that it has none for stays out of
/// sight with its label, wherever the plan is shown.
[[nodiscard]] bool isShown(const form::PlanForm& form, const PlanRow& row);

/// The row whose label is shown at this height (twips), row 0 included; nothing where there is
/// none.
[[nodiscard]] std::optional<int> rowAtHeight(const form::PlanForm& form, double top);

/// Twips that a window is wide which shows a time axis that ends there, and the places behind it.
[[nodiscard]] int widthWithPlaces(const form::PlanForm& form, int axisEnd);

} // namespace plan
