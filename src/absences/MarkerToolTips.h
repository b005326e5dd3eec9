#pragma once

#include "absences/AsyncKeyState.h"
#include "plan/PlanContent.h"

#include <QDate>
#include <QString>

namespace absences
{

/// What a click with Shift or Ctrl does on a box, and to which date, which need not be the shown
/// day's: `day` is the marker's `Jour`. With several classes each is toggled by itself, so only the
/// key is told and not the outcome. Plain text of two lines, the end of the tooltip that all of a
/// box has.
[[nodiscard]] QString ZAbsToolTip(const plan::PlanBox& box, QDate day);

/// What one gesture does, "enregistrer l’absence de la classe L1 le lundi 17/03/2025". More classes
/// than `mostNamed` are counted and not named.
[[nodiscard]] QString gestureWords(VirtualKey key, const plan::PlanBox& box, QDate day,
                                   qsizetype mostNamed);

} // namespace absences
