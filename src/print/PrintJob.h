#pragma once

#include "print/Sheet.h"

#include <QPagedPaintDevice>
#include <vector>

namespace print
{

/// Prints the sheets, one a page, on a printer, a preview or a PDF file, each within the printable
/// area: on paper larger than A4 they grow with the paper; what does not fit is scaled down.
/// Error: PrinterError when the device takes no page.
void printSheets(QPagedPaintDevice& printer, const std::vector<Sheet>& sheets);

} // namespace print
