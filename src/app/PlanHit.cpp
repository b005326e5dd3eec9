#include "app/PlanHit.h"

#include "form/PlanForm.h"
#include "paint/Overlays.h"
#include "plan/RoomRows.h"

namespace app
{
namespace
{

PlanHit::Part partAt(const paint::OverlayPlaces& places, bool labelsShown, QPointF point)
{
    if (labelsShown && places.Label2.contains(point)) {
        return PlanHit::Part::Counter;
    }
    if (labelsShown && places.Labelz.contains(point)) {
        return PlanHit::Part::Size;
    }
    if (places.YAbs.contains(point)) {
        return PlanHit::Part::YAbs;
    }
    if (places.XAbs.contains(point)) {
        return PlanHit::Part::XAbs;
    }
    return places.ZAbs.contains(point) ? PlanHit::Part::Box : PlanHit::Part::Nothing;
}

} // namespace

PlanHit hitPlan(const form::PlanForm& form, const plan::PlanContent& content,
                const paint::DrawingTarget& target, QPointF point)
{
    PlanHit found;
    const paint::OverlayFonts fonts;
    for (const plan::PlanRow& row : content.rows) {
        if (!plan::isShown(form, row)) {
            continue;
        }
        for (const plan::PlanBox& box : row.boxes) {
            const auto places = paint::drawnPlaces(
                form, paint::overlayPlaces(form, target, row.index, box, fonts), box);
            const auto part = partAt(places, box.group && form.Check3.isChecked(), point);
            if (part != PlanHit::Part::Nothing) {
                found = {part, &row, &box}; // boxes drawn later lie over earlier ones
            }
        }
    }
    return found;
}

} // namespace app
