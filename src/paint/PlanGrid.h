#pragma once

#include "form/PlanForm.h"
#include "paint/DrawingTarget.h"
#include "plan/ShownHours.h"

#include <QPainter>
#include <vector>

namespace paint
{

/// A straight line of the plan's grid, in twips.
struct GridLine {
    int x1 = 0;
    int y1 = 0;
    int x2 = 0;
    int y2 = 0;
    form::Colour color;

    friend bool operator==(const GridLine&, const GridLine&) = default;
};

/// The lines of the empty grid: one per hour tick, three quarters inside each hour, and on the
/// screen grey lines between the rows. No lines while "Grille" is not ticked or no row is shown.
/// The grid runs from the header down to the bottom of row `rowsShown`.
[[nodiscard]] std::vector<GridLine> planGridLines(const form::PlanForm& form, int rowsShown,
                                                  bool targetIsPrinter);

/// The same as the window draws it: over the hours that it shows, with a line for each of them
/// whether or not the design has a tick for it. The quarters are faint, so that the boxes are what
/// is seen first.
[[nodiscard]] std::vector<GridLine> windowGridLines(const form::PlanForm& form, int rowsShown,
                                                    const plan::ShownHours& hours);

/// Draws the grid on a surface.
void DrawPlanGrid(QPainter& surface, const DrawingTarget& target,
                  const std::vector<GridLine>& lines);

} // namespace paint
