#pragma once

#include "context/DaySlots.h"
#include "context/Establishment.h"
#include "context/RoomPage.h"
#include "context/RoomPlaces.h"
#include "context/Totals.h"
#include "context/ViewedPeriod.h"
#include "form/PlanForm.h"
#include "lookup/OccupancyLookup.h"
#include "plan/CellLayout.h"
#include "plan/RowColors.h"

namespace plan
{

/// All that the program knows while it runs, as one value: what is chosen, what start-up has read,
/// where the plan stands. A copy is a program of its own: whatever is done with it, the window does
/// not notice.
struct PlanState {
    form::PlanForm form;
    context::EstablishmentHeader establishment;
    context::ViewedPeriod period;
    context::DaySlots slots;
    context::RoomPlaces places;
    context::RoomPage page;
    context::Totals totals;
    CellLayout layout;
    lookup::SeanceTypeShortNames SeanceTypeShortNames;
    RowColors colors;
};

/// What the plan's lookups depend on, as it is chosen now.
[[nodiscard]] lookup::View viewOf(const PlanState& state);

} // namespace plan
