#pragma once

#include <QString>

/// Times of day as texts: 8h30, 8H30 and 8:30 are the same time.
namespace runtime
{

inline constexpr int kMinutesOfDay = 24 * 60;

/// The text in upper case with every "H" turned into ":", as times are read from it.
[[nodiscard]] QString normaliseTimeText(const QString& text);

/// Seconds since midnight of a time of day written 8h30, 8H30, 8:30 or 8:30:15, outer blanks aside.
/// 8h is 8 o'clock.
/// Error: TypeMismatch for a text that is no time.
[[nodiscard]] int secondsOfDay(const QString& text);

/// Minute boundaries between two times of day given in seconds since midnight: from 8:00:59 to
/// 8:01:00 is one minute. Negative when `to` is earlier.
[[nodiscard]] int minutesBetween(int fromSeconds, int toSeconds);

/// When something ends that starts at a time of day such as 8h30 and lasts so many minutes: in
/// minutes since the midnight before its start, so 1440 and more on the next day.
/// Error: TypeMismatch for a start that is no time.
[[nodiscard]] int endMinute(const QString& start, int minutes);

} // namespace runtime
