#include "plan/ShownHours.h"

#include "context/AxisLabels.h"
#include "runtime/RunTimeError.h"
#include "runtime/TimeOfDay.h"

#include <algorithm>

namespace plan
{
namespace
{

/// What the design marks.
ShownHours designOf(const context::TimeAxis& axis)
{
    const int end = axis.TimeToX(form::PlanForm::tickTime(form::PlanForm::kTicks - 1));
    return {static_cast<double>(axis.originLeft), static_cast<double>(end)};
}

} // namespace

HoursExtent::HoursExtent() : m_design(designOf(context::screenAxis(form::PlanForm()))) {}

void HoursExtent::take(double from, double length)
{
    const double end = std::min(from + length, m_midnight);
    if (end <= from) {
        return;
    }
    const bool isFirst = m_hours.to <= m_hours.from;
    m_hours.from = isFirst ? from : std::min(m_hours.from, from);
    m_hours.to = isFirst ? end : std::max(m_hours.to, end);
}

void HoursExtent::take(const PlanState& state, const PlanContent& content)
{
    const context::TimeAxis axis = context::screenAxis(state.form);
    m_design = designOf(axis);
    m_midnight = axis.TimeToX(QStringLiteral("0h00")) + axis.widthOf(runtime::kMinutesOfDay);
    for (int number = 1; number <= context::DaySlots::kSlots; ++number) {
        if (const auto& slot = state.slots.slot(number)) {
            runtime::skipOnError(
                [&] { take(axis.TimeToX(slot->start), axis.widthOf(slot->minutes)); });
        }
    }
    for (const PlanRow& row : content.rows) {
        for (const PlanBox& box : row.boxes) {
            take(box.x, box.width);
        }
        for (const UnknownCell& cell : row.unknown) {
            take(cell.x, cell.width);
        }
    }
}

ShownHours HoursExtent::hours() const
{
    return m_hours.to > m_hours.from ? m_hours : m_design;
}

ShownHours shownHours(const PlanState& state, const PlanContent& content)
{
    HoursExtent extent;
    extent.take(state, content);
    return extent.hours();
}

} // namespace plan
