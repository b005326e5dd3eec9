#pragma once

#include <QDate>

/// Steps between the days that the plan can show.
namespace context
{

/// `date` itself when it is a Monday, else the latest Monday before it.
[[nodiscard]] QDate MondayOnOrBefore(QDate date);
/// The first Monday strictly after `date`.
[[nodiscard]] QDate NextMondayAfter(QDate date);
[[nodiscard]] QDate PlusOneWeek(QDate date);
[[nodiscard]] QDate PlusFourWeeks(QDate date);
[[nodiscard]] QDate PlusFiveDays(QDate date);

/// Index of the date in the day list: 0 for a Monday, 5 for a Saturday, -1 for a Sunday, which
/// the list does not hold.
[[nodiscard]] int dayListIndex(QDate date);

} // namespace context
