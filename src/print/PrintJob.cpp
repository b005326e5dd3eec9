#include "print/PrintJob.h"

#include "print/Paper.h"
#include "print/PrintedSheet.h"
#include "print/Targets.h"

#include <QPainter>
#include <algorithm>

namespace print
{
namespace
{

/// How much the sheets are scaled across, and down with everything else. One document has one
/// scale: its last sheet may hold few rows, and its text is no larger for that.
struct Scale {
    double across = 1;
    double down = 1;
};

/// Device pixels that a sheet takes. The offset that keeps it off its left edge keeps it off the
/// right one as well.
QSizeF sizeOf(const Sheet& sheet, const paint::DrawingTarget& target)
{
    return {target.toPixelsX(sheet.width) + 2.0 * target.TargetXOffset,
            target.toPixelsY(kHeaderTwips + sheet.bottom + kFooterTwips)};
}

Scale scaleOf(const std::vector<Sheet>& sheets, const paint::DrawingTarget& target, QSizeF area,
              double most)
{
    Scale scale{most, most};
    for (const Sheet& sheet : sheets) {
        const QSizeF size = sizeOf(sheet, target);
        scale.across = std::min(scale.across, area.width() / size.width());
        scale.down = std::min(scale.down, area.height() / size.height());
    }
    scale.down = std::min(scale.down, scale.across);
    return scale;
}

void printSheet(QPainter& surface, paint::DrawingTarget target, const Sheet& sheet, double width,
                const Scale& scale)
{
    const double taken = sizeOf(sheet, target).width() * scale.across;
    surface.save();
    surface.translate((width - taken) / 2, 0);
    // Too many rows for the page make everything smaller, but the time axis keeps its length: it
    // would only leave paper empty beside it and the box texts no room.
    surface.scale(scale.down, scale.down);
    target.TargetTwipsPerPixelX *= scale.down / scale.across;
    surface.translate(0, target.toPixelsY(kHeaderTwips));
    PrintHeader(surface, target, sheet);
    PrintPlanBody(surface, target, sheet);
    printFooter(surface, target, sheet);
    surface.restore();
}

} // namespace

void printSheets(QPagedPaintDevice& printer, const std::vector<Sheet>& sheets)
{
    QPainter surface;
    requirePaper(surface.begin(&printer));
    const paint::DrawingTarget target = UsePrinterTarget(printer);
    const QSizeF area(printer.width(), printer.height());
    const Scale scale =
        scaleOf(sheets, target, area, std::max(1.0, designScale(printer.pageLayout())));
    for (const Sheet& sheet : sheets) {
        requirePaper(&sheet == &sheets.front() || printer.newPage());
        printSheet(surface, target, sheet, area.width(), scale);
    }
    requirePaper(surface.end());
}

} // namespace print
