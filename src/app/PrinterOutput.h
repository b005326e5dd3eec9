#pragma once

#include <functional>

class QPrinter;

namespace app
{

/// Prints what `paint` paints, on the printer or into the file that it is set to; a file is
/// replaced as a whole or not at all. Error: PrinterError.
void printOn(QPrinter& printer, const std::function<void(QPrinter&)>& paint);

} // namespace app
