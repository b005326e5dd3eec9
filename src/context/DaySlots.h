#pragma once

#include "form/PlanForm.h"

#include <QString>
#include <array>
#include <cstddef>
#include <optional>

namespace context
{

/// One séance slot of the day as the database describes it.
struct Slot {
    QString start;        ///< start time as stored, for example 8h30
    int startSeconds = 0; ///< start, seconds since midnight
    int minutes = 0;      ///< length
};

/// The day's time slots. Monday's stand for every day, so the time grid is the same all week.
class DaySlots
{
public:
    /// Slots that a day can have.
    static constexpr int kSlots = form::PlanForm::kSlotLabels;

    /// Number of slots that the day has.
    [[nodiscard]] int SlotCount() const;
    /// The slot with this number, 1 to 11; nothing when the day has none.
    [[nodiscard]] const std::optional<Slot>& slot(int number) const
    {
        return m_slots.at(static_cast<std::size_t>(number - 1));
    }
    void set(int number, std::optional<Slot> slot);

    /// Whether an occupation that starts with slot `slot` - 1 and lasts `minutes` ends after the
    /// start of slot `slot` (2 to 11). A slot that the day does not have is never reached.
    [[nodiscard]] bool OverrunsIntoSlot(int slot, int minutes) const;
    /// Whether what starts and lasts so ends after the start of the slot; the start is in seconds
    /// since midnight.
    [[nodiscard]] bool reaches(int number, int startSeconds, int minutes) const;

private:
    std::array<std::optional<Slot>, kSlots> m_slots;
};

} // namespace context
