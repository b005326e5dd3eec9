#pragma once

#include "plan/PlanContent.h"
#include "plan/PlanState.h"

#include <QString>
#include <optional>

/// What the plan knows of a place where it shows nothing.
namespace plan
{

/// A stretch of the day, in minutes since midnight.
struct DayStretch {
    int from = 0;
    int to = 0;

    friend bool operator==(const DayStretch&, const DayStretch&) = default;
};

/// Around this minute of the day, the time in which the row shows nothing and in which nothing is
/// there that it does not show: from the end of what is before, or the day's first slot, to the
/// beginning of what comes next, or the end of the last slot. Nothing outside of the slots, in a
/// box, where it is unknown what is there, and where something is that no box tells.
[[nodiscard]] std::optional<DayStretch> emptyStretch(const PlanState& state, const PlanRow& row,
                                                     int minute);

/// " en semaine A", where one week of the two is chosen; empty for both.
[[nodiscard]] QString chosenWeekWords(const form::PlanForm& form);

/// "Salle 106, 60 places, libre de 9h30 à 11h00" and what that leaves open; the room and its places
/// alone where nothing is known.
[[nodiscard]] QString emptyPlaceWords(const PlanState& state, const PlanRow& row, int minute);

} // namespace plan
