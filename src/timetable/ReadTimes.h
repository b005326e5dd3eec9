#pragma once

#include "timetable/TimeSpan.h"

#include <QDate>
#include <QStringView>
#include <optional>

/// What the texts of a timetable mean, read as the plan reads them. A text that cannot be read, a
/// null one included, is nothing.
namespace timetable
{

/// How long a meeting lasts whose length cannot be read.
inline constexpr Minutes kUsualLength{90};

/// A time of day: 8h30, 8H30, 8:30 and 8:30:15 are times, "matin" is none.
[[nodiscard]] std::optional<MinuteOfDay> readTime(QStringView text);

/// The number that the text begins with, to the nearest minute: "90", "90 min" and "89.6" are 90
/// minutes, "1h30" is one. Nothing for less than one minute, which no meeting lasts, and for more
/// than 16 bits hold, where the plan gives up.
[[nodiscard]] std::optional<Minutes> readLength(QStringView text);

/// A date that begins the text: 2026-11-16, 2026/11/16, also with a time behind it.
[[nodiscard]] std::optional<QDate> readDate(QStringView text);

/// A whole text as a number. Nothing for other texts and beyond 32 bits.
[[nodiscard]] std::optional<int> readNumber(QStringView text);

} // namespace timetable
