#pragma once

#include "context/DaySlots.h"
#include "context/RoomPlaces.h"
#include "context/StartReads.h"
#include "form/PlanForm.h"

namespace context
{

/// At start-up: places the tick labels and the slot labels and reads the day's slots and the
/// capacities of the rooms.
/// Errors: TypeMismatch for a time that is none, SubscriptOutOfRange for a 257th room, any database
/// error.
void LoadSlots(form::PlanForm& form, StartReads& reads, DaySlots& slots, RoomPlaces& places);

} // namespace context
