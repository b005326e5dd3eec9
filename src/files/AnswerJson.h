#pragma once

#include "answers/Clashes.h"
#include "answers/FreeRooms.h"
#include "answers/RoomUse.h"
#include "answers/Whereabouts.h"

#include <QByteArray>

/// Answers as JSON, for other programs: UTF-8; times are minutes since midnight, days count from 0
/// for Monday, what is not known is null.
namespace files
{

[[nodiscard]] QByteArray freeRoomsAsJson(const timetable::Occupancy& occupancy,
                                         const answers::FreeRooms& answer);
[[nodiscard]] QByteArray weekAsJson(const timetable::Occupancy& occupancy,
                                    const std::vector<timetable::HoldingId>& items);
[[nodiscard]] QByteArray clashesAsJson(const timetable::Occupancy& occupancy,
                                       const std::vector<answers::Clash>& clashes);
/// Shares of seats that cannot be known are null.
[[nodiscard]] QByteArray roomUseAsJson(const timetable::Occupancy& occupancy,
                                       const answers::RoomUse& use);
[[nodiscard]] QByteArray hitsAsJson(const timetable::Occupancy& occupancy,
                                    const std::vector<answers::Hit>& hits);

} // namespace files
