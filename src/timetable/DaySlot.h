#pragma once

#include "timetable/TimeSpan.h"

#include <QDate>
#include <QString>
#include <optional>

namespace timetable
{

// Days count from Monday, 0, to Sunday, 6. The window's list of days ends with Saturday.
inline constexpr int kNoDay = -1;
inline constexpr int kMonday = 0;
inline constexpr int kSunday = 6;
inline constexpr int kDaysOfWeek = 7;

/// Requires: a valid date.
[[nodiscard]] inline int dayOf(QDate date)
{
    return date.dayOfWeek() - Qt::Monday;
}

/// What a slot key such as Mardi3 names.
struct SlotKey {
    int day = kNoDay;
    int number = 0; ///< counts from 1; 0 for none

    friend bool operator==(const SlotKey&, const SlotKey&) = default;
};

/// A row of `seances`: one slot of a day.
struct DaySlot {
    int number = 0;    ///< counts from 1
    int day = kMonday; ///< whose row it is; a day without rows of its own has Monday's
    QString startText; ///< as stored, for example 8h30; empty for a null
    QString endText;
    std::optional<MinuteOfDay> start; ///< nothing where the text is no time
    std::optional<MinuteOfDay> end;

    friend bool operator==(const DaySlot&, const DaySlot&) = default;
};

/// When the slot is. Without a readable end, or with one that is not behind its start, it lasts as
/// long as a usual course. Nothing where its start cannot be read.
[[nodiscard]] std::optional<TimeSpan> timeOf(const DaySlot& slot);

} // namespace timetable
