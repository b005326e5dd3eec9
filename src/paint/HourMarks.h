#pragma once

#include "form/PlanForm.h"
#include "plan/ShownHours.h"

#include <QString>
#include <vector>

namespace paint
{

/// A time of day that is written above the rows.
struct HourMark {
    double x = 0;    ///< twips on the time axis
    int minute = 0;  ///< since midnight
    QString caption; ///< 8h00

    friend bool operator==(const HourMark&, const HourMark&) = default;
};

/// The times that the window marks: every whole hour of those shown, whether or not the design has
/// a tick for it, and before them the beginning where it has room of its own.
[[nodiscard]] std::vector<HourMark> hourMarks(const form::PlanForm& form,
                                              const plan::ShownHours& hours);

/// The time of day at a position of the axis (twips), in minutes since midnight.
[[nodiscard]] double minuteAt(const form::PlanForm& form, double x);
/// The position of a time of day.
[[nodiscard]] double positionOf(const form::PlanForm& form, double minute);

} // namespace paint
