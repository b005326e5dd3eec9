#pragma once

#include "plan/PlanPage.h"
#include "print/Heading.h"

#include <vector>

namespace print
{

/// One sheet of paper as values: a page of the plan whose labels and boxes are placed for paper.
/// Positions are twips; the header lies above 0, where the hours start.
struct Sheet {
    plan::PlanPage page;
    Heading heading;
    int axisEnd = 0; ///< end of the time axis: nothing of a box is drawn beyond it
    int right = 0;   ///< right edge of the places
    int width = 0;   ///< right edge of everything, the header included
    int bottom = 0;  ///< bottom of the last row, of the totals under it when there are any
};

/// Places a page of the plan for paper: hours and boxes along an axis of 1700 twips for 90
/// minutes, the totals under their slots below the rows. Paper shows no row 0, so the rows move up
/// by one.
[[nodiscard]] Sheet makeSheet(plan::PlanPage page);

/// The sheets of several pages.
[[nodiscard]] std::vector<Sheet> makeSheets(std::vector<plan::PlanPage> pages);

} // namespace print
