#include "context/AxisLabels.h"

#include <algorithm>

namespace context
{

TimeAxis screenAxis(const form::PlanForm& form)
{
    return {form::PlanForm::tickTime(0), form.Label1.front().place.left,
            TimeAxis::kScreenSlotWidth};
}

void placeTicks(form::PlanForm& form)
{
    const TimeAxis screen = screenAxis(form);
    for (int tick = 1; tick < form::PlanForm::kTicks; ++tick) {
        form.Label1.at(static_cast<std::size_t>(tick)).place.left =
            screen.TimeToX(form::PlanForm::tickTime(tick));
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
