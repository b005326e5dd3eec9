#pragma once

#include "answers/WeekOf.h"

#include <QString>
#include <optional>
#include <vector>

namespace answers
{

/// A room, teacher, class or subject that a search has found.
struct Hit {
    Subject subject;
    QString name;                            ///< the first of its spellings
    std::vector<timetable::HoldingId> items; ///< its week
};

/// All names that hold the text somewhere, whatever its accents and capitals: rooms, those that
/// only rows name included, teachers, classes, subjects, each kind by name. Nothing for an empty
/// text.
[[nodiscard]] std::vector<Hit> whereabouts(const timetable::Occupancy& occupancy,
                                           const QString& text, const AskedWeek& week);

// The one with this name: as it is spelt, or else apart from accents and capitals; nothing where
// nobody has the name.

[[nodiscard]] std::optional<Subject> roomNamed(const timetable::Occupancy& occupancy,
                                               const QString& name);
[[nodiscard]] std::optional<Subject> teacherNamed(const timetable::Occupancy& occupancy,
                                                  const QString& name);
[[nodiscard]] std::optional<Subject> classNamed(const timetable::Occupancy& occupancy,
                                                const QString& name);
[[nodiscard]] std::optional<Subject> subjectNamed(const timetable::Occupancy& occupancy,
                                                  const QString& name);

} // namespace answers
