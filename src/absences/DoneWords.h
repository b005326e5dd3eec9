#pragma once

#include "absences/Toggled.h"

#include <vector>

namespace absences
{

/// What a click has done, in a French sentence: "Absence de 4 classes enregistrée, mardi 24/11
/// (refaire le geste pour annuler)". Empty where it has done nothing.
[[nodiscard]] QString doneWords(const std::vector<Toggled>& done);

} // namespace absences
