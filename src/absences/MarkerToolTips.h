#pragma once

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

} // namespace absences
