#pragma once

#include "answers/WeekOf.h"
#include "timetable/Occupancy.h"

#include <QString>
#include <array>
#include <cstddef>
#include <vector>

namespace answers
{

/// Monday to Saturday: what a week shows.
inline constexpr std::size_t kShownDays = 6;

/// A day of a drawn week.
struct WeekDay {
    QString title; ///< "Lundi"; of a week with a date "Lundi 23/11"
    /// Its slots by start, each once; those without a readable start are left out.
    std::vector<timetable::TimeSpan> slotTimes;
    /// From its first slot or box to the end of its last: what a drawing of this day alone shows.
    /// What begins within the day ends at midnight at the latest here. Of a day without any the
    /// whole week's, and 8h00 to 18h00 where that has none either.
    timetable::TimeSpan axis;

    friend bool operator==(const WeekDay&, const WeekDay&) = default;
};

/// Monday first.
using WeekDays = std::array<WeekDay, kShownDays>;

/// The days of a week with what is held on them: `times` are the times of each day's boxes.
[[nodiscard]] WeekDays
weekDays(const timetable::Timetable& timetable, const AskedWeek& week,
         const std::array<std::vector<timetable::TimeSpan>, kShownDays>& times);

/// From the first start of all days to their last end.
[[nodiscard]] timetable::TimeSpan commonAxis(const WeekDays& days);

} // namespace answers
