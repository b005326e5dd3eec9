#pragma once

#include <algorithm>
#include <compare>

namespace timetable
{

/// A length of time.
struct Minutes {
    int value = 0;
    friend constexpr bool operator==(Minutes, Minutes) = default;
    friend constexpr auto operator<=>(Minutes left, Minutes right)
    {
        return left.value <=> right.value;
    }
};

/// A time of day, in minutes since midnight. An end may lie beyond 1440: the day's meetings stay
/// the day's, however long.
struct MinuteOfDay {
    int value = 0;
    friend constexpr bool operator==(MinuteOfDay, MinuteOfDay) = default;
    friend constexpr auto operator<=>(MinuteOfDay left, MinuteOfDay right)
    {
        return left.value <=> right.value;
    }
};

[[nodiscard]] constexpr MinuteOfDay operator+(MinuteOfDay time, Minutes length)
{
    return {time.value + length.value};
}

[[nodiscard]] constexpr Minutes operator-(MinuteOfDay to, MinuteOfDay from)
{
    return {to.value - from.value};
}

/// A stretch of a day, half-open: the next one may begin exactly at `end`.
struct TimeSpan {
    MinuteOfDay start;
    Minutes length;

    [[nodiscard]] constexpr MinuteOfDay end() const { return start + length; }
    /// Whether the two have at least one minute in common.
    [[nodiscard]] constexpr bool meets(const TimeSpan& other) const
    {
        return std::max(start, other.start) < std::min(end(), other.end());
    }

    friend constexpr bool operator==(const TimeSpan&, const TimeSpan&) = default;
    /// By start; of those that start together the shorter one first.
    friend constexpr auto operator<=>(const TimeSpan& left, const TimeSpan& right)
    {
        return left.start == right.start ? left.length <=> right.length
                                         : left.start <=> right.start;
    }
};

/// The stretch between two times of a day. Requires: `end` is not before `start`.
[[nodiscard]] constexpr TimeSpan between(MinuteOfDay start, MinuteOfDay end)
{
    return {start, end - start};
}

} // namespace timetable
