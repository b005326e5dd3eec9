#pragma once

#include <QString>
#include <array>
#include <cstdint>

/// The faculty's week: six days of eight slots of 90 minutes.
namespace demo
{

constexpr int dayCount = 6;
constexpr int slotCount = 8;
constexpr int slotMinutes = 90;
constexpr int slotsBeforeNoon = 3;

/// Start of the slot (0 .. 7) in minutes since midnight. Eight slots and a break do not fit before
/// 19h00: the half hour at noon lets the last of them begin then, as an evening slot.
[[nodiscard]] int slotStart(int slot);
/// Key of the slot in the timetable: "Lundi1" for day 0, slot 0.
[[nodiscard]] QString slotKey(int day, int slot);
/// A time of day as the timetable writes it: 8h00.
[[nodiscard]] QString timeText(int minutesOfDay);
/// Whether a séance of this many minutes may begin in the slot: none runs through the noon break
/// or later than the last slot.
[[nodiscard]] bool fitsHalfDay(int slot, int minutes);

/// Weeks of a séance, as bits.
enum Weeks : unsigned { weekA = 1, weekB = 2, everyWeek = 3 };

/// What part of the week somebody or something is taken, by half slots and week kinds.
class WeekMask
{
public:
    WeekMask() = default;
    /// From the half (0 or 1) of the slot on. `minutes` is a multiple of 45.
    WeekMask(int day, int slot, int half, int minutes, unsigned weeks);

    [[nodiscard]] bool meets(const WeekMask& other) const;
    void add(const WeekMask& other);
    /// Slots of the day that are taken at least in part, in either week.
    [[nodiscard]] int slotsOnDay(int day) const;
    /// Slots of the whole week that are taken at least in part, in either week.
    [[nodiscard]] int slotsInWeek() const;

private:
    [[nodiscard]] std::uint64_t either() const;

    // One bit per slot (8 × day + slot) for: A first half, A second half, B first, B second.
    std::array<std::uint64_t, 4> m_taken{};
};

} // namespace demo
