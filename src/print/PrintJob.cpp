#include "print/PrintJob.h"

#include "print/PrintedSheet.h"
#include "print/Targets.h"
#include "runtime/RunTimeError.h"

#include <QPageLayout>
#include <QPainter>
#include <algorithm>
#include <cmath>

namespace print
{
namespace
{

// A4 lying across, in points: the paper that the sheet is designed for.
constexpr double kDesignWidth = 842;
constexpr double kDesignHeight = 595;
// Points (6 mm) that no printer needs for itself.
constexpr double kMargin = 6 / 25.4 * 72;

/// How much larger than the design the paper is; 1 for smaller paper.
double growth(const QPageLayout& layout)
{
    const QRectF paper = layout.fullRect(QPageLayout::Point);
    return std::max(1.0, std::min(paper.width() / kDesignWidth, paper.height() / kDesignHeight));
}

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

void require(bool success)
{
    if (!success) {
        throw runtime::RunTimeError(runtime::ErrorNumber::PrinterError);
    }
}

} // namespace

bool layPaper(QPagedPaintDevice& printer)
{
    // First, so that the margins are those of the paper lying across. Qt does not turn the minimum
    // margins with the paper: the widest of them serves every edge.
    printer.setPageOrientation(QPageLayout::Landscape);
    QPageLayout layout = printer.pageLayout();
    layout.setUnits(QPageLayout::Point);
    const QMarginsF least = layout.minimumMargins();
    const double margin =
        std::ceil(std::max({kMargin, least.left(), least.top(), least.right(), least.bottom()}));
    return layout.setMargins(QMarginsF(margin, margin, margin, margin)) &&
           printer.setPageLayout(layout);
}

void printSheets(QPagedPaintDevice& printer, const std::vector<Sheet>& sheets)
{
    QPainter surface;
    require(surface.begin(&printer));
    const paint::DrawingTarget target = UsePrinterTarget(printer);
    const QSizeF area(printer.width(), printer.height());
    const Scale scale = scaleOf(sheets, target, area, growth(printer.pageLayout()));
    for (const Sheet& sheet : sheets) {
        require(&sheet == &sheets.front() || printer.newPage());
        printSheet(surface, target, sheet, area.width(), scale);
    }
    require(surface.end());
}

} // namespace print
