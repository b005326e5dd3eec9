#include "shell/PdfExport.h"

#include "print/PdfDocument.h"
#include "print/Sheet.h"

#include <utility>

namespace shell
{

QByteArray planAsPdf(const Shell& shell, std::vector<plan::PlanPage> pages)
{
    return print::pdfOf(print::makeSheets(std::move(pages), shell.slots(), shell.establishment()),
                        shell.fileDate());
}

} // namespace shell
