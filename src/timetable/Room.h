#pragma once

#include <QString>
#include <optional>

namespace timetable
{

/// A row of the room table; or a room that rows name and that table does not know, which has
/// nothing but its name.
struct Room {
    QString name; ///< as stored; a null one is empty, as on the plan
    std::optional<int> zone;
    std::optional<QString> department; ///< absent: open to all
    int places = 0;                    ///< 0 where none are told

    friend bool operator==(const Room&, const Room&) = default;
};

} // namespace timetable
