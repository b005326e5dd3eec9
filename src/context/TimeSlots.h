#pragma once

#include "context/TimeAxis.h"
#include "db/Database.h"
#include "form/PlanForm.h"

#include <array>
#include <cstdint>
#include <optional>

namespace context
{

/// One séance slot of the day as the database describes it.
struct Slot {
    QString start;        ///< start time as stored, for example 8h30
    int startSeconds = 0; ///< start, seconds since midnight
    int minutes = 0;      ///< length
};

/// The day's time slots and the capacities of the rooms. Read once at start-up: Monday's slots
/// stand for every day, so the time grid is the same all week.
class TimeSlots
{
public:
    /// Rooms that the plan can hold.
    static constexpr int kMaxRooms = 256;

    TimeSlots(form::PlanForm& form, db::Database& database);

    /// Places the tick labels and the slot labels and reads the room capacities.
    /// Errors: TypeMismatch for a time that is none, SubscriptOutOfRange for a 257th room, any
    /// database error.
    void LoadSlots();

    /// Places the tick labels along the axis; the first one stays where the design puts it.
    void placeTicks();
    /// Puts the slot labels at the foot of the window, `margin` twips above its inner bottom.
    void placeTotals(int margin);

    /// The screen's mapping from time to position.
    [[nodiscard]] TimeAxis axis() const;
    [[nodiscard]] int TimeToX(const QString& text) const { return axis().TimeToX(text); }

    /// Number of slots found.
    [[nodiscard]] int SlotCount() const { return m_SlotCount; }
    /// The slot with this number, 1 to 11; nothing when the database has none.
    [[nodiscard]] const std::optional<Slot>& slot(int number) const;
    /// Position in twips where the plan's time ends: the last tick or the last slot's end.
    [[nodiscard]] int axisEnd() const;

    /// Capacity of a room by its position in the list of rooms, 0 upward.
    /// Error: SubscriptOutOfRange for a position of 256 or more.
    [[nodiscard]] std::int16_t RoomPlaces(int index) const;

    /// Whether an occupation that starts with slot `slot` - 1 and lasts `minutes` ends after the
    /// start of slot `slot` (2 to 11). A slot that the day does not have is never reached.
    [[nodiscard]] bool OverrunsIntoSlot(int slot, int minutes) const;

private:
    void loadSlot(int index);
    [[nodiscard]] std::optional<Slot> readSlot(const QString& key);
    void loadRoomPlaces();

    form::PlanForm& m_form;
    db::Database& m_database;
    std::array<std::optional<Slot>, form::PlanForm::kSlotLabels> m_slots;
    std::array<std::int16_t, kMaxRooms> m_RoomPlaces{};
    std::int16_t m_SlotCount = 0;
};

} // namespace context
