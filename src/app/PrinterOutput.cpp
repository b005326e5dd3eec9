#include "app/PrinterOutput.h"

#include "files/WholeFile.h"
#include "print/PdfDocument.h"
#include "runtime/RunTimeError.h"

#include <QFile>
#include <QPaintEngine>
#include <QPrinter>
#include <QScopeGuard>
#include <QTemporaryDir>

namespace app
{
namespace
{

/// Makes the document elsewhere first, so that the file is replaced as a whole or not at all: the
/// printer itself would begin by emptying it, and say nothing of a disk that is full.
void printToFile(QPrinter& printer, const std::function<void(QPrinter&)>& paint)
{
    const QString path = printer.outputFileName();
    const QTemporaryDir folder;
    printer.setOutputFileName(folder.filePath(QStringLiteral("plan.pdf")));
    QFile made(printer.outputFileName());
    {
        const auto putBack = qScopeGuard([&] { printer.setOutputFileName(path); });
        paint(printer);
    }
    const QByteArray document = made.open(QIODevice::ReadOnly) ? made.readAll() : QByteArray();
    runtime::RunTimeError fault(runtime::ErrorNumber::PrinterError);
    if (!print::isWholePdf(document)) {
        throw fault;
    }
    try {
        files::writeWholeFile(path, document);
    } catch (const files::ExportError& reason) {
        fault.addActivity(QString::fromUtf8(reason.what()));
        throw fault;
    }
}

} // namespace

// While a preview shows its pages, the printer draws pictures, whatever its output will be.
void printOn(QPrinter& printer, const std::function<void(QPrinter&)>& paint)
{
    if (printer.paintEngine()->type() == QPaintEngine::Pdf &&
        printer.outputFormat() == QPrinter::PdfFormat) {
        printToFile(printer, paint);
    } else {
        paint(printer);
    }
}

} // namespace app
