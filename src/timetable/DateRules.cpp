#include "timetable/DateRules.h"

namespace timetable
{

QDate MondayOnOrBefore(QDate date)
{
    return date.addDays(Qt::Monday - date.dayOfWeek());
}

QDate NextMondayAfter(QDate date)
{
    return PlusOneWeek(MondayOnOrBefore(date));
}

QDate PlusOneWeek(QDate date)
{
    return date.addDays(7);
}

QDate PlusFourWeeks(QDate date)
{
    return date.addDays(28);
}

QDate PlusFiveDays(QDate date)
{
    return date.addDays(5);
}

} // namespace timetable
