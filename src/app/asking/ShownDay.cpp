#include "app/asking/ShownDay.h"

#include <algorithm>

namespace app
{

int shownDay(const form::PlanForm& form)
{
    return std::max(form.CbJour.listIndex(), timetable::kMonday);
}

QDate shownDate(const form::PlanForm& form)
{
    const bool isDated = form.Check2.isChecked() && form.OpEns().isSelected();
    return isDated ? form.DTPicker1.value() : QDate();
}

timetable::Week shownWeeks(const form::PlanForm& form)
{
    return form.OptA().isSelected()   ? timetable::Week::A
           : form.OptB().isSelected() ? timetable::Week::B
                                      : timetable::Week::Every;
}

answers::AskedWeek shownWeek(const form::PlanForm& form, const timetable::WeekRhythm& rhythm)
{
    const QDate date = shownDate(form);
    return date.isValid() ? answers::AskedWeek{rhythm.weekOf(date), date}
                          : answers::AskedWeek{shownWeeks(form), {}};
}

} // namespace app
