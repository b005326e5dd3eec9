#pragma once

#include "form/PlanForm.h"

#include <array>
#include <cstdint>

namespace context
{

/// The totals line and the counts behind it, one entry per slot of the day.
struct Totals {
    static constexpr std::size_t kSlots = form::PlanForm::kSlotLabels;

    std::array<std::int16_t, kSlots> SlotSeats{};        ///< taken in the room counted last
    std::array<std::int16_t, kSlots> SlotTeacherCount{}; ///< teachers counted
    std::array<std::int32_t, kSlots> sums{};             ///< seats taken in all rooms counted
    /// Whether a room counted is of unknown use in the slot.
    std::array<bool, kSlots> lacks{};
    /// What the line says of a slot.
    struct Entry {
        QString text = QStringLiteral("0000");
        bool isShown = false; ///< not where no seat is taken
    };
    std::array<Entry, kSlots> line; ///< `Tot` is written from it
    /// Whether the next refresh counts at all.
    bool CountingOn = false;
    /// The line was counted before the last choice: a refresh that does not count left it standing.
    bool isOld = false;

    /// Starts the totals line from zero and hides it. Leaves `CountingOn` alone.
    void clear(form::PlanForm& form);
    /// Adds the room counted last to the line; with `teachers` their counts stand behind the seats.
    /// A total that lacks a room is shown with a question mark.
    void addRoom(form::PlanForm& form, bool teachers);
    /// Writes the line into its labels.
    void show(form::PlanForm& form) const;
    /// Whether the line says anything.
    [[nodiscard]] bool isShown() const;
};

/// Clears the totals line; counting starts again when "Comptage" is ticked.
void ResetTotals(form::PlanForm& form, Totals& totals);

} // namespace context
