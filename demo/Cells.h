#pragma once

#include "demo/Draw.h"
#include "demo/Faculty.h"

namespace demo
{

/// A room in a slot of the week.
struct Cell {
    int room = 0;
    int day = 0;
    int slot = 0;
};

/// The cells in which the timetable shall have something: first those of amphitheatres, whose
/// courses are the hardest to place, then those of laboratories, then the others.
[[nodiscard]] std::vector<Cell> chooseCells(const Faculty& faculty, Draw& draw);

} // namespace demo
