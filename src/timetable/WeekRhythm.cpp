#include "timetable/WeekRhythm.h"

#include "timetable/DateRules.h"
#include "timetable/DaySlot.h"

namespace timetable
{

WeekRhythm::WeekRhythm(QDate weekA) : m_weekA(MondayOnOrBefore(weekA)) {}

Week WeekRhythm::weekOf(QDate date) const
{
    if (!isKnown() || !date.isValid()) {
        return Week::Every;
    }
    const qint64 days = m_weekA.daysTo(MondayOnOrBefore(date));
    return days / kDaysOfWeek % 2 == 0 ? Week::A : Week::B;
}

} // namespace timetable
