#pragma once

#include "form/PlanForm.h"
#include "plan/PlanContent.h"
#include "plan/RoomOccupancy.h"

#include <memory>

namespace plan
{

/// One page of the plan with all that shows on it, as values of its own: the controls, without
/// events, and what the refresh worked out. Paper and exports are made from pages, so nothing that
/// they do reaches the window.
struct PlanPage {
    std::unique_ptr<form::PlanForm> form; ///< never null
    PlanContent content;
    CellLayout layout;
    int RowsShown = 0; ///< rows 1 to this one are shown; -1 for a page without rooms
    int number = 0;    ///< of `count` pages of the room set; 0 for a page on its own
    int count = 0;
};

} // namespace plan
