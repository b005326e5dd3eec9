#pragma once

#include "timetable/Week.h"

#include <QDate>

namespace timetable
{

/// Weeks A and B take turns: whoever knows the Monday of one week A knows them all.
class WeekRhythm
{
public:
    /// Nobody knows which week is which.
    WeekRhythm() = default;
    /// `weekA` is a day of some week A; no valid date: nobody knows.
    explicit WeekRhythm(QDate weekA);

    [[nodiscard]] bool isKnown() const { return m_weekA.isValid(); }
    /// Which week the date lies in, Monday to Sunday; `Week::Every` where nobody knows.
    [[nodiscard]] Week weekOf(QDate date) const;

    friend bool operator==(const WeekRhythm&, const WeekRhythm&) = default;

private:
    QDate m_weekA; ///< its Monday
};

} // namespace timetable
