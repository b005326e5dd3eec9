#include "context/ViewedPeriod.h"

#include "runtime/FrenchDate.h"
#include "timetable/DaySlot.h"

namespace context
{

void ViewedPeriod::tellDays(form::PlanForm& form, QDate first, QDate last)
{
    firstToldDay = first;
    lastToldDay = last;
    form.Label4[1].caption = runtime::frenchLongDate(first);
    form.Label4[3].caption = runtime::frenchLongDate(last);
}

QDate ViewedPeriod::examWeekStart() const
{
    return examWeeks.date(examWeek, timetable::kMonday).value_or(QDate());
}

QDate ViewedPeriod::shownDate(const form::PlanForm& form) const
{
    const int day = form.CbJour.listIndex();
    return day < 0 ? form.DTPicker1.value() : CurrentDate.addDays(day);
}

int dayListIndex(QDate date)
{
    const int day = timetable::dayOf(date);
    return day == timetable::kSunday ? -1 : day;
}

} // namespace context
