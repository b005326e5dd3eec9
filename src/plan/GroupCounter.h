#pragma once

#include "lookup/RoomCell.h"

#include <QString>
#include <optional>

namespace plan
{

/// The small labels over a box that stands for several classes or is too full.
struct GroupCounter {
    QString counter;   ///< caption of `Label2`: timetable rows found
    QString sizeLabel; ///< caption of `Labelz`: students, or "Dépassement n/places"
    QString details;   ///< what a click on the counter shows
    bool overfull = false;
    bool atRight = false; ///< the counter stands in the box's right corner, else in its left one

    friend bool operator==(const GroupCounter&, const GroupCounter&) = default;
};

/// The counter of a box; none for a single class that fits. `places` is the text of the room's
/// places.
[[nodiscard]] std::optional<GroupCounter> groupCounterOf(const lookup::RoomCell& cell,
                                                         const QString& places, bool atRight);

} // namespace plan
