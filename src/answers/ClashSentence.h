#pragma once

#include "answers/Clashes.h"

#include <QString>

namespace answers
{

/// A clash of this occupancy in one French sentence: where, when, what is wrong, and for whom, of
/// many holders the first five.
[[nodiscard]] QString clashSentence(const timetable::Occupancy& occupancy, const Clash& clash);

/// The sentence without where and when: "deux séances à la fois (L1 A avec Durand, L2 B)".
[[nodiscard]] QString clashFault(const timetable::Occupancy& occupancy, const Clash& clash);

/// What is wrong, in a few words: "Salle en double".
[[nodiscard]] QString kindWords(ClashKind kind);

} // namespace answers
