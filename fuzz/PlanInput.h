#pragma once

#include "files/PlanDocument.h"
#include "fuzz/Input.h"

namespace fuzz
{

/// A page of the plan whose texts are the fields of an input. First come the title, the
/// establishment, its university, the period and letters for what is switched on (c counting, g
/// "S. Groupées", x exams, d the date); then records of a word and its fields:
///   slot     number, start, minutes
///   room     name, places, colour
///   box      slot, start, minutes, text, classes, teacher, subject, letters (m make-up, a class
///            absent, s students absent, g counter, o overfull)
///   unknown  slot, start, minutes
///   fault    name, text
[[nodiscard]] files::PlanDocument planFrom(Input& input);

/// The text as it should come back from a file of text. `control`: what stands for a character that
/// such a file cannot hold.
[[nodiscard]] QString asShown(const QString& text, QChar control);

} // namespace fuzz
