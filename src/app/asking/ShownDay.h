#pragma once

#include "answers/WeekOf.h"
#include "form/PlanForm.h"
#include "timetable/WeekRhythm.h"

/// What the plan shows now, as a question would put it.
namespace app
{

/// The chosen day, 0 to 5; Monday where none is, as on a Sunday.
[[nodiscard]] int shownDay(const form::PlanForm& form);
/// The date, where the plan shows one with its make-ups; else no valid date.
[[nodiscard]] QDate shownDate(const form::PlanForm& form);
/// Which weeks the plan shows.
[[nodiscard]] timetable::Week shownWeeks(const form::PlanForm& form);
/// The week of the date where the plan shows one, else the chosen one of the teaching weeks.
[[nodiscard]] answers::AskedWeek shownWeek(const form::PlanForm& form,
                                           const timetable::WeekRhythm& rhythm);

} // namespace app
