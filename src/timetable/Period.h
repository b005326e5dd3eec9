#pragma once

#include <QDate>
#include <QString>
#include <array>
#include <cstdint>
#include <optional>

namespace timetable
{

/// A teaching period ("tranche").
struct Period {
    std::int32_t ident = 0;
    QString name;
    QDate firstDay; ///< no valid date where it cannot be read: then nothing lies before the period
    QDate lastDay;  ///< likewise: then nothing lies behind it

    /// Whether the day is one of the period's, its first and its last included.
    [[nodiscard]] bool holds(QDate day) const;

    friend bool operator==(const Period&, const Period&) = default;
};

/// The first days of a period's exam weeks: two of exams and one of controls. Mondays, as the
/// window reckons them; where the database names another day, it is that one. No valid date where
/// it cannot be known.
struct ExamWeeks {
    std::array<QDate, 3> firstDays;

    /// What stands in for a period that has no exam weeks of its own: exams begin on the Monday
    /// after its last day, for two weeks; controls on the Monday after its first four weeks.
    [[nodiscard]] static ExamWeeks usualOf(const Period& period);

    /// The date of a day of the week with this number: `week` 1 to 3, `day` 0 to 5, Monday to
    /// Saturday. Nothing for others, and where the week's first day is not known.
    [[nodiscard]] std::optional<QDate> date(int week, int day) const;

    friend bool operator==(const ExamWeeks&, const ExamWeeks&) = default;
};

} // namespace timetable
