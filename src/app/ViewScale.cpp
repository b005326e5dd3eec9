#include "app/ViewScale.h"

#include "plan/CellLayout.h"
#include "plan/RoomRows.h"
#include "print/Targets.h"
#include "runtime/Numbers.h"

#include <algorithm>
#include <cmath>

namespace app
{
namespace
{

constexpr double kMostTwipsAcross = 19.0;
// A day of few hours fills the view as well; one of fewer than four would be stretched out of
// shape.
constexpr double kFewestTwipsAcross = 5.0;
constexpr int kFewestTwipsDown = 9;

/// How many twips a pixel may stand for so that the rows' text stays legible: a row of three lines
/// needs 35 pixels, one of two 30 (an exam adds a line), one of a single line 13.
int mostTwipsDown(int rowHeight)
{
    if (rowHeight >= plan::CellLayout::kThreeLinesHeight) {
        return rowHeight / 35;
    }
    if (rowHeight >= plan::CellLayout::kTwoLinesHeight) {
        return rowHeight / 30;
    }
    return rowHeight >= plan::CellLayout::kOneLineHeight ? rowHeight / 17 : rowHeight / 13;
}

} // namespace

paint::DrawingTarget fitPlan(const form::PlanForm& form, const plan::ShownHours& hours, int rows,
                             QSize view)
{
    paint::DrawingTarget target = print::UseScreenTarget();
    const int origin = form.Label1.front().place.left; // behind the rooms' names
    const int end = origin + runtime::nearestInteger(hours.to - hours.from);
    const double across = plan::widthWithPlaces(form, end);
    target.TargetTwipsPerPixelX =
        std::clamp(across / std::max(1, view.width()), kFewestTwipsAcross, kMostTwipsAcross);
    target.hasHints = true;
    target.TargetXOffset =
        runtime::nearestInteger(target.toPixelsX(origin) - target.toPixelsX(hours.from));
    const form::Place& model = form.Salle.front().place;
    const int down = model.top + rows * (model.height + plan::kRowGap) - plan::kRowGap;
    const int wanted =
        static_cast<int>(std::ceil(static_cast<double>(down) / std::max(1, view.height())));
    target.TargetTwipsPerPixelY = std::clamp(wanted, kFewestTwipsDown, mostTwipsDown(model.height));
    return target;
}

} // namespace app
