#pragma once

#include "form/PlanForm.h"
#include "plan/PlanContent.h"

#include <QString>
#include <QStringList>

/// What the screen says by places, labels, colours and pictures, in French words: for those who do
/// not see them.
namespace plan
{

/// The time at which something ends, for example 10h00; empty when the start is no time of day.
[[nodiscard]] QString endText(const QString& start, int minutes);

/// "8h30 à 10h00": start and end with `between` them; the start alone when it is no time of day.
[[nodiscard]] QString stretchWords(const QString& start, const QString& between, int minutes);

/// What the group counter stands for, where "S. Groupées" shows it; on the screen a click tells the
/// classes. The blanks in a class's name do not break.
[[nodiscard]] QStringList groupWords(const form::PlanForm& form, const PlanBox& box);

/// "A" or "B" where what the box tells is held in that week alone; empty for several rows, whose
/// others may be held in the other week, and for a make-up, which has a date.
[[nodiscard]] QString weekLetter(const PlanBox& box);

/// "En même temps : 10h00 à 11h30, L2 INFO" for each box of the row that is there at the same time
/// as this one of its boxes, with which it shares the height of the row.
[[nodiscard]] QStringList overlapWords(const PlanRow& row, const PlanBox& box);

/// What hatching, the red label and the absence pictures say.
[[nodiscard]] QStringList remarkWords(const form::PlanForm& form, const PlanBox& box);

} // namespace plan
