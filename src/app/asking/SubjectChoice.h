#pragma once

#include "answers/WeekOf.h"

#include <QString>
#include <QStringList>
#include <optional>

// The two lists from which somebody chooses whose week is shown: what it is, and its name.
namespace app
{

// Positions among the kinds: those of `answers::Subject`, and all rooms behind them.
inline constexpr int kRoomKind = 0;
inline constexpr int kAllRoomsKind = 4;

/// What a week may be of: "Salle", "Enseignant" and so on, "Toutes les salles" at the end.
[[nodiscard]] QStringList subjectKinds();
/// The names of that kind, each once: rooms in the timetable's order, others by their letters.
[[nodiscard]] QStringList subjectNames(const timetable::Timetable& timetable, int kind);
/// Who or what has that name; nothing where nobody has it.
[[nodiscard]] std::optional<answers::Subject> chosenSubject(const timetable::Occupancy& occupancy,
                                                            int kind, const QString& name);

} // namespace app
