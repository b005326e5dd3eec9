#pragma once

#include "plan/PlanContent.h"

#include <vector>

/// What of a row is there at the same time. Boxes that touch do not overlap.
namespace plan
{

[[nodiscard]] bool overlap(const PlanBox& first, const PlanBox& second);

/// Tells each box of the row its lane: boxes that overlap, be it through others, share the height
/// of the row between them, those that begin first above.
void assignLanes(PlanRow& row);

/// The boxes of the row that overlap this one of its boxes.
[[nodiscard]] std::vector<const PlanBox*> overlapping(const PlanRow& row, const PlanBox& box);

} // namespace plan
