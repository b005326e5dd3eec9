#include "context/ViewedPeriod.h"

namespace context
{

QDate ViewedPeriod::examWeekStart() const
{
    switch (examWeek) {
    case 1:
        return ExamWeek1Start;
    case 2:
        return ExamWeek2Start;
    case 3:
        return ControlWeekStart;
    default:
        return {};
    }
}

QDate ViewedPeriod::shownDate(const form::PlanForm& form) const
{
    const int day = form.CbJour.listIndex();
    return day < 0 ? form.DTPicker1.value() : CurrentDate.addDays(day);
}

} // namespace context
