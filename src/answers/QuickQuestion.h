#pragma once

#include "timetable/Holding.h"

#include <QDate>
#include <QString>
#include <optional>

namespace answers
{

/// What a line such as "mardi 9h30-11h 40 places semaine A" says about a room that somebody looks
/// for. What it does not say is nothing.
struct QuickQuestion {
    std::optional<int> day; ///< 0 to 5
    QDate date;
    std::optional<timetable::MinuteOfDay> from;
    std::optional<timetable::MinuteOfDay> to;
    std::optional<int> places;
    std::optional<timetable::Week> week;
    std::optional<int> zone;
    QString unread; ///< the words that say nothing, as they were typed

    friend bool operator==(const QuickQuestion&, const QuickQuestion&) = default;
};

/// Reads the line: days by at least three letters or as "aujourd'hui" and "demain", dates as
/// 24/11 or 24/11/2026, times as 9h30, 9:30 or 9h, two of them with a dash or words between them,
/// a bare number as places, "zone 3", "semaine A". Accents and capitals do not matter.
[[nodiscard]] QuickQuestion quickQuestion(const QString& line, QDate today);

} // namespace answers
