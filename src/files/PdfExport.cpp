#include "files/PdfExport.h"

#include "print/PdfDocument.h"
#include "print/Sheet.h"

namespace files
{

QByteArray planAsPdf(const PlanDocument& document)
{
    return print::pdfOf(print::makeSheets(document.pages), document.date);
}

} // namespace files
