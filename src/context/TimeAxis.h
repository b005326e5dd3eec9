#pragma once

#include <QString>

namespace context
{

/// Minutes that one slot width stands for.
constexpr int kSlotMinutes = 90;

/// Width in twips of a stretch of time, not yet rounded, where a slot of 90 minutes takes
/// `slotWidth`.
[[nodiscard]] constexpr double widthOf(double minutes, int slotWidth)
{
    return slotWidth * minutes / kSlotMinutes;
}

/// The one mapping from a time of day to a horizontal position of the plan. A plain value: the
/// printed sheet uses one of its own beside the screen's.
struct TimeAxis {
    /// Twips that 90 minutes take on the screen and on the printed sheet.
    static constexpr int kScreenSlotWidth = 2400;
    static constexpr int kPrinterSlotWidth = 1700;

    QString originTime; ///< time of day at the origin, for example 8h00
    int originLeft = 0; ///< twips from the window's left edge to the origin
    int SlotWidth = kScreenSlotWidth;

    /// Position in twips of a time of day such as 8h30, 8H30 or 8:30; left of the origin when it
    /// is earlier. The text itself stays as it is.
    /// Error: TypeMismatch for a text that is no time.
    [[nodiscard]] int TimeToX(const QString& text) const;

    /// Width in twips of a stretch of time; not yet rounded.
    [[nodiscard]] double widthOf(double minutes) const
    {
        return context::widthOf(minutes, SlotWidth);
    }
};

} // namespace context
