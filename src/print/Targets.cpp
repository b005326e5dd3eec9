#include "print/Targets.h"

#include "runtime/Numbers.h"

#include <algorithm>

namespace print
{
namespace
{

constexpr double kTwipsPerInch = 1440;
constexpr double kPointsPerInch = 72;
// Device pixels that the sheet is moved to the right.
constexpr int kPrinterXOffset = 150;
// Points that a box text starts from.
constexpr int kPrinterFontSize = 9;

} // namespace

paint::DrawingTarget UseScreenTarget()
{
    return {};
}

paint::DrawingTarget UsePrinterTarget(const QPaintDevice& printer)
{
    paint::DrawingTarget target;
    target.TargetIsPrinter = true;
    target.TargetXOffset = kPrinterXOffset;
    target.TargetTwipsPerPixelX = kTwipsPerInch / printer.logicalDpiX();
    // Whole twips downwards, at least one: a printer may have pixels smaller than a twip.
    target.TargetTwipsPerPixelY =
        std::max(1, runtime::nearestInteger(kTwipsPerInch / printer.logicalDpiY()));
    target.SlotWidth = context::TimeAxis::kPrinterSlotWidth;
    target.PixelsPerPoint = printer.logicalDpiY() / kPointsPerInch;
    target.FontSize = kPrinterFontSize;
    return target;
}

} // namespace print
