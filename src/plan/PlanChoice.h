#pragma once

#include "lookup/OccupancyLookup.h"

#include <cstdint>

namespace plan
{

struct PlanState;

/// What the boxes of a plan depend on beside its rooms.
struct PlanChoice {
    lookup::View view;
    int day = 0; ///< index in the list of days, Monday first; -1 for a Sunday
    std::int32_t tranche = 0;

    friend bool operator==(const PlanChoice&, const PlanChoice&) = default;
};

/// As it is chosen now.
[[nodiscard]] PlanChoice choiceOf(const PlanState& state);

} // namespace plan
