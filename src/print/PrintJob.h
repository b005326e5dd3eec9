#pragma once

#include "print/Sheet.h"

#include <QPagedPaintDevice>
#include <vector>

namespace print
{

/// Dots per inch that sheets are laid out with where the device leaves the choice: a pixel is then
/// two twips exactly, in both directions.
constexpr int kSheetResolution = 720;

/// Lays the paper across (landscape), with margins that no printer needs for itself.
void layPaper(QPagedPaintDevice& printer);

/// Prints the sheets, one a page, on a printer, a preview or a PDF file, each within the printable
/// area: on paper larger than A4 they grow with the paper; what does not fit is scaled down.
/// Error: PrinterError when the device does not take a page.
void printSheets(QPagedPaintDevice& printer, const std::vector<Sheet>& sheets);

} // namespace print
