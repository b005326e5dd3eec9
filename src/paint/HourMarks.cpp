#include "paint/HourMarks.h"

#include "context/AxisLabels.h"

#include <cmath>

namespace paint
{
namespace
{

constexpr int kHour = 60;
constexpr int kOrigin = form::PlanForm::kFirstHour * kHour;
// Minutes that the caption of the beginning takes before the first whole hour.
constexpr int kOwnRoom = 25;

HourMark markAt(const form::PlanForm& form, int minute)
{
    return {
        positionOf(form, minute), minute,
        QStringLiteral("%1h%2").arg(minute / kHour).arg(minute % kHour, 2, 10, QLatin1Char('0'))};
}

} // namespace

double minuteAt(const form::PlanForm& form, double x)
{
    const context::TimeAxis axis = context::screenAxis(form);
    return kOrigin + (x - axis.originLeft) * context::kSlotMinutes / axis.SlotWidth;
}

double positionOf(const form::PlanForm& form, double minute)
{
    const context::TimeAxis axis = context::screenAxis(form);
    return axis.originLeft + axis.widthOf(minute - kOrigin);
}

std::vector<HourMark> hourMarks(const form::PlanForm& form, const plan::ShownHours& hours)
{
    // Boxes stand on whole twips, times on thirds of them.
    const int from = static_cast<int>(std::lround(minuteAt(form, hours.from)));
    const int to = static_cast<int>(std::lround(minuteAt(form, hours.to)));
    const int first = (from + kHour - 1) / kHour * kHour;
    std::vector<HourMark> marks;
    if (first - from >= kOwnRoom) {
        marks.push_back(markAt(form, from));
    }
    for (int minute = first; minute <= to; minute += kHour) {
        marks.push_back(markAt(form, minute));
    }
    return marks;
}

} // namespace paint
