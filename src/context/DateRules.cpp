#include "context/DateRules.h"

namespace context
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

int dayListIndex(QDate date)
{
    // The week is counted from Sunday = 1 and the list starts on Monday = 2.
    return date.dayOfWeek() % 7 + 1 - 2;
}

} // namespace context
