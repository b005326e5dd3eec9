#include "answers/WeekDay.h"

#include "runtime/FrenchDate.h"

#include <algorithm>

namespace answers
{
namespace
{

using timetable::MinuteOfDay;
using timetable::TimeSpan;

constexpr MinuteOfDay kMidnight{24 * 60};
// What a week without slots and boxes shows.
constexpr TimeSpan kUsualDay{{8 * 60}, {10 * 60}};

/// From the first start to the last end, midnight at most. Nothing for no times.
std::optional<TimeSpan> hull(const std::vector<TimeSpan>& times)
{
    if (times.empty()) {
        return std::nullopt;
    }
    TimeSpan all = times.front();
    for (const TimeSpan& time : times) {
        all = timetable::between(std::min(all.start, time.start), std::max(all.end(), time.end()));
    }
    return timetable::between(all.start, std::min(all.end(), kMidnight));
}

std::vector<TimeSpan> slotTimesOf(const timetable::Timetable& timetable, int day)
{
    std::vector<TimeSpan> times;
    for (const timetable::DaySlot& slot : timetable.slotsOf(day)) {
        if (const std::optional<TimeSpan> time = timetable::timeOf(slot)) {
            times.push_back(*time);
        }
    }
    std::sort(times.begin(), times.end());
    times.erase(std::unique(times.begin(), times.end()), times.end());
    return times;
}

QString titleOf(const timetable::When& day)
{
    const QString name = runtime::frenchDayNames().at(static_cast<std::size_t>(day.day()));
    return day.isDate() ? name + u' ' + day.date().toString(QStringLiteral("dd/MM")) : name;
}

} // namespace

WeekDays weekDays(const timetable::Timetable& timetable, const AskedWeek& week,
                  const std::array<std::vector<TimeSpan>, kShownDays>& times)
{
    WeekDays days;
    std::array<std::optional<TimeSpan>, kShownDays> axes;
    std::vector<TimeSpan> known;
    for (const timetable::When& when : week.days()) {
        const auto day = static_cast<std::size_t>(when.day());
        days.at(day).title = titleOf(when);
        days.at(day).slotTimes = slotTimesOf(timetable, when.day());
        std::vector<TimeSpan> all = days.at(day).slotTimes;
        all.insert(all.end(), times.at(day).begin(), times.at(day).end());
        axes.at(day) = hull(all);
        if (axes.at(day)) {
            known.push_back(*axes.at(day));
        }
    }
    const TimeSpan whole = hull(known).value_or(kUsualDay);
    for (std::size_t day = 0; day < kShownDays; ++day) {
        days.at(day).axis = axes.at(day).value_or(whole);
    }
    return days;
}

TimeSpan commonAxis(const WeekDays& days)
{
    std::vector<TimeSpan> axes;
    for (const WeekDay& day : days) {
        axes.push_back(day.axis);
    }
    return hull(axes).value_or(kUsualDay);
}

} // namespace answers
