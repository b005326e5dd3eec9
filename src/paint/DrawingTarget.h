#pragma once

#include "context/TimeAxis.h"
#include "form/Controls.h"

#include <QRectF>

namespace paint
{

/// Where the plan is drawn: how twips turn into device pixels. A value, so that a printed sheet or
/// a picture never disturbs the screen's.
struct DrawingTarget {
    bool TargetIsPrinter = false;
    /// Device pixels added to every box's left edge and to all else along the time axis: 150 on the
    /// printer, 0 on the screen. In the window it puts the first hour that is shown beside the
    /// rooms' names.
    int TargetXOffset = 0;
    double TargetTwipsPerPixelX = 15.0; ///< 15 at 96 dots per inch
    int TargetTwipsPerPixelY = 15;
    /// Twips that 90 minutes take.
    int SlotWidth = context::TimeAxis::kScreenSlotWidth;
    /// Device pixels of a point (1/72 inch): what fonts and lines on paper are measured in.
    double PixelsPerPoint = 96.0 / 72.0;
    /// Points that a box text on paper starts from: 9 on the printer. 0 on the screen, where it
    /// starts from the painter's font.
    int FontSize = 0;

    /// The window's and the hall's own: boxes that overlap share the height of their row, and a box
    /// that is held in one week alone says in a corner in which.
    bool hasHints = false;

    friend bool operator==(const DrawingTarget&, const DrawingTarget&) = default;

    [[nodiscard]] double toPixelsX(double twips) const { return twips / TargetTwipsPerPixelX; }
    /// Where a position on the time axis lies.
    [[nodiscard]] double onAxis(double twips) const { return toPixelsX(twips) + TargetXOffset; }
    /// The position on the time axis that lies there.
    [[nodiscard]] double fromAxis(double pixels) const
    {
        return (pixels - TargetXOffset) * TargetTwipsPerPixelX;
    }
    [[nodiscard]] double toPixelsY(double twips) const { return twips / TargetTwipsPerPixelY; }
    /// A rectangle in twips as it lies on the target, without the boxes' offset.
    [[nodiscard]] QRectF toPixels(const QRectF& twips) const
    {
        return {toPixelsX(twips.x()), toPixelsY(twips.y()), toPixelsX(twips.width()),
                toPixelsY(twips.height())};
    }
    [[nodiscard]] QRectF toPixels(const form::Place& place) const
    {
        return toPixels(QRectF(place.left, place.top, place.width, place.height));
    }
};

} // namespace paint
