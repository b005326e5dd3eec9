#pragma once

#include "print/Sheet.h"

#include <QPagedPaintDevice>
#include <vector>

namespace print
{

/// Dots per inch that sheets are laid out with where the device leaves the choice: a pixel is then
/// two twips exactly, in both directions.
constexpr int kSheetResolution = 720;

/// Lays the paper across (landscape), with one margin at all edges: wide enough for any printer,
/// and for what this one says of itself. False when the device refuses.
[[nodiscard]] bool layPaper(QPagedPaintDevice& printer);

/// Prints the sheets, one a page, on a printer, a preview or a PDF file, each within the printable
/// area: on paper larger than A4 they grow with the paper; what does not fit is scaled down.
/// Error: PrinterError when the device takes no page.
void printSheets(QPagedPaintDevice& printer, const std::vector<Sheet>& sheets);

} // namespace print
