#include "print/Paper.h"

#include "runtime/RunTimeError.h"

#include <algorithm>
#include <cmath>

namespace print
{
namespace
{

// A4 lying across, in points.
constexpr double kDesignWidth = 842;
constexpr double kDesignHeight = 595;
// Points (6 mm) that no printer needs for itself.
constexpr double kMargin = 6 / 25.4 * 72;

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

double designScale(const QPageLayout& layout)
{
    const QRectF paper = layout.fullRect(QPageLayout::Point);
    return std::min(paper.width() / kDesignWidth, paper.height() / kDesignHeight);
}

void requirePaper(bool success)
{
    if (!success) {
        throw runtime::RunTimeError(runtime::ErrorNumber::PrinterError);
    }
}

} // namespace print
