#pragma once

#include "context/Periods.h"
#include "context/RoomSet.h"
#include "form/PlanForm.h"

namespace context
{

/// Ties the controls of period, day, mode and room filter to their handlers. The parts outlive the
/// form's events.
void tieEvents(form::PlanForm& form, Periods& periods, RoomSet& rooms);

} // namespace context
