#pragma once

#include "answers/WeekBox.h"
#include "answers/WeekDay.h"

#include <QString>
#include <optional>
#include <vector>

namespace answers
{

/// What is held in a week at nobody knows what time.
struct UnknownHour {
    timetable::HoldingId holding;
    int day = timetable::kMonday; ///< 0 to 5
    QString words;                ///< "Lundi : L2 GE A (Lundi9) : ni heure de début, …"

    friend bool operator==(const UnknownHour&, const UnknownHour&) = default;
};

/// The week of somebody or something as it is drawn: days across, hours down.
struct WeekGrid {
    WeekDays days;
    timetable::TimeSpan axis;   ///< of all days: from the first slot or box to the end of the last
    std::vector<WeekBox> boxes; ///< by day, start and week
    std::vector<UnknownHour> unplaced;

    /// Whether there is nothing at all.
    [[nodiscard]] bool isEmpty() const { return boxes.empty() && unplaced.empty(); }
};

/// `items` are what the subject has in that week (see WeekOf.h); without a subject all rooms'.
[[nodiscard]] WeekGrid weekGrid(const timetable::Occupancy& occupancy,
                                const std::optional<Subject>& subject, const AskedWeek& week,
                                const std::vector<timetable::HoldingId>& items);

} // namespace answers
