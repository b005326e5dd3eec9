#include "timetable/Period.h"

#include "timetable/DateRules.h"

namespace timetable
{
namespace
{

constexpr int kDaysOfExamWeek = 6;

} // namespace

bool Period::holds(QDate day) const
{
    return !(firstDay.isValid() && day < firstDay) && !(lastDay.isValid() && day > lastDay);
}

ExamWeeks ExamWeeks::usualOf(const Period& period)
{
    const QDate exams = NextMondayAfter(period.lastDay);
    // Controls are held early in the period, so they are counted from its first day.
    return {{exams, PlusOneWeek(exams), NextMondayAfter(PlusFourWeeks(period.firstDay))}};
}

std::optional<QDate> ExamWeeks::date(int week, int day) const
{
    const bool isNamed = week >= 1 && week <= static_cast<int>(firstDays.size()) && day >= 0 &&
                         day < kDaysOfExamWeek;
    if (!isNamed) {
        return std::nullopt;
    }
    const QDate first = firstDays.at(static_cast<std::size_t>(week - 1));
    return first.isValid() ? std::optional(first.addDays(day)) : std::nullopt;
}

} // namespace timetable
