#pragma once

#include "absences/AsyncKeyState.h"
#include "plan/PlanContent.h"

#include <QDate>
#include <QString>

namespace absences
{

/// Tooltip of `XAbs`, the class-absence picture: whether the class is absent, then the gestures.
/// Plain text of several lines, like that of the band. `day` is the marker's `Jour`.
[[nodiscard]] QString XAbsToolTip(const plan::PlanBox& box, QDate day);

/// Tooltip of `ZAbs`, the band over the whole box: what a click with Shift or Ctrl does there, and
/// to which date, which need not be the shown day's. With several classes each is toggled by
/// itself, so only the key is told and not the outcome.
[[nodiscard]] QString ZAbsToolTip(const plan::PlanBox& box, QDate day);

/// What one gesture does, "enregistrer l’absence de la classe L1 le lundi 17/03/2025". More classes
/// than `mostNamed` are counted and not named.
[[nodiscard]] QString gestureWords(VirtualKey key, const plan::PlanBox& box, QDate day,
                                   qsizetype mostNamed);

} // namespace absences
