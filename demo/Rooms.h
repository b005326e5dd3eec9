#pragma once

#include "demo/Model.h"

namespace demo
{

/// So many rooms (1 .. 256) in proportions that hold at any size: amphitheatres in zone 1, class
/// rooms in zone 2 and, where there are many, in zones 5 upward, laboratories in zone 3, workshops
/// and the like in zone 4. Names differ in more than case and accents, and their order is the same
/// on databases that mind accents and on those that do not.
[[nodiscard]] std::vector<Room> makeRooms(int count);

} // namespace demo
