#pragma once

#include "timetable/DaySlot.h"
#include "timetable/Id.h"
#include "timetable/Meeting.h"
#include "timetable/TimeSpan.h"
#include "timetable/Week.h"

#include <QDate>
#include <array>
#include <compare>
#include <optional>

namespace timetable
{

/// One part of a meeting as it holds its rooms: which, when and in which weeks. The two rooms of an
/// alternating course are held in different weeks and make two holdings.
struct Holding {
    int meeting = 0; ///< its position in `Timetable::meetings`
    Part part = Part::A;
    std::array<RoomNameId, 2> rooms; ///< the second is nothing where one is held
    Week weeks = Week::Every;
    int day = kNoDay;             ///< 0 to 6; of what has a date, this date's
    QDate date;                   ///< of make-ups and exams; no valid date for a course
    std::optional<TimeSpan> time; ///< nothing where the start is not known
};

/// A day about which somebody asks.
class When
{
public:
    /// A day of the week in the teaching weeks of the period, so without make-ups and exams.
    /// `day`: 0 to 6.
    [[nodiscard]] static When weekday(int day, Week week = Week::Every)
    {
        return {day, QDate(), week};
    }
    /// A date; `week` is the one that it lies in, `Week::Every` where nobody knows: then both
    /// count. Requires: a valid date.
    [[nodiscard]] static When date(QDate date, Week week = Week::Every)
    {
        return {dayOf(date), date, week};
    }

    [[nodiscard]] int day() const { return m_day; }
    [[nodiscard]] bool isDate() const { return m_date.isValid(); }
    /// No valid date for a day of the week.
    [[nodiscard]] QDate date() const { return m_date; }
    [[nodiscard]] Week week() const { return m_week; }

private:
    When(int day, QDate date, Week week) : m_day(day), m_date(date), m_week(week) {}

    int m_day;
    QDate m_date;
    Week m_week;
};

} // namespace timetable
