#pragma once

#include "form/PlanForm.h"

#include <array>
#include <cstdint>

namespace context
{

/// The counts behind the totals line, one entry per slot of the day.
struct Totals {
    std::array<std::int16_t, form::PlanForm::kSlotLabels> SlotSeats{};        ///< seats taken
    std::array<std::int16_t, form::PlanForm::kSlotLabels> SlotTeacherCount{}; ///< teachers counted
    /// Whether the next refresh counts at all.
    bool CountingOn = false;

    /// Starts the totals line from zero and hides it. Leaves `CountingOn` alone.
    void clear(form::PlanForm& form);
};

/// Clears the totals line; counting starts again when "Comptage" is ticked.
void ResetTotals(form::PlanForm& form, Totals& totals);

} // namespace context
