#include "context/AxisLabels.h"

#include <algorithm>

namespace context
{

TimeAxis screenAxis(const form::PlanForm& form)
{
    const form::Label& origin = form.Label1.front();
    return {origin.caption, origin.place.left, TimeAxis::kScreenSlotWidth};
}

void placeTicks(form::PlanForm& form)
{
    const TimeAxis screen = screenAxis(form);
    for (std::size_t tick = 1; tick < form.Label1.size(); ++tick) {
        form::Label& label = form.Label1.at(tick);
        label.place.left = screen.TimeToX(label.caption);
    }
}

void placeTotals(form::PlanForm& form, int margin)
{
    for (form::Label& total : form.Tot) {
        total.place.top = form.scaleHeight - total.place.height - margin;
    }
}

int axisEnd(const form::PlanForm& form, const DaySlots& slots)
{
    int end = form.Label1.back().place.left;
    for (int number = 1; number <= DaySlots::kSlots; ++number) {
        if (slots.slot(number)) {
            const form::Place& place = form.Tot.at(static_cast<std::size_t>(number - 1)).place;
            end = std::max(end, place.left + place.width);
        }
    }
    return end;
}

} // namespace context
