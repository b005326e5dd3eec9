#pragma once

namespace timetable
{

/// The weeks of a period alternate between A and B.
enum class Week {
    Every, ///< of what is held: in both; of what is asked: in either
    A,
    B,
};

/// Whether what is held in `held` counts for whoever asks about `asked`: they share a week.
[[nodiscard]] constexpr bool shareWeek(Week held, Week asked)
{
    return held == Week::Every || asked == Week::Every || held == asked;
}

} // namespace timetable
