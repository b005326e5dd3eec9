#pragma once

#include <QDate>

/// Steps between the days of a calendar of weeks.
namespace timetable
{

// No valid date leads to none.

/// `date` itself when it is a Monday, else the latest Monday before it.
[[nodiscard]] QDate MondayOnOrBefore(QDate date);
/// The first Monday strictly after `date`.
[[nodiscard]] QDate NextMondayAfter(QDate date);
[[nodiscard]] QDate PlusOneWeek(QDate date);
[[nodiscard]] QDate PlusFourWeeks(QDate date);
[[nodiscard]] QDate PlusFiveDays(QDate date);

} // namespace timetable
