#pragma once

#include "plan/PlanContent.h"
#include "plan/PlanState.h"

#include <QStringList>

namespace plan
{

/// One page of the plan with all that shows on it, as values of its own: the choices and what the
/// refresh worked out. Paper and files are made from pages, so nothing that they do reaches the
/// window.
struct PlanPage {
    PlanState state;
    PlanContent content;
    int number = 0; ///< of `count` pages of the room set; 0 for a page on its own
    int count = 0;
    /// Rooms that have no row: the greyed one; on the last of all pages also the one behind it
    /// that would be greyed on a page without a row.
    QStringList leftOut;
};

} // namespace plan
