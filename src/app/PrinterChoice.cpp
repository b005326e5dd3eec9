#include "app/PrinterChoice.h"

#include "app/SaveDialog.h"

#include <QPrintDialog>
#include <QPrinter>

namespace app
{

// A machine without printers prints into files.
bool choosePrinter(QWidget* window, QPrinter& printer, const QString& title, int sheets)
{
    if (printer.outputFormat() == QPrinter::PdfFormat && !printDialogTakesFiles()) {
        return choosePdfFile(window, printer);
    }
    QPrintDialog dialog(&printer, window);
    dialog.setWindowTitle(title);
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, sheets > 1);
    dialog.setMinMax(1, sheets);
    return dialog.exec() == QDialog::Accepted;
}

bool choosePdfFile(QWidget* window, QPrinter& printer)
{
    const QString path = askWhereToSave(
        window, QStringLiteral("Aucune imprimante n’est installée : enregistrer en PDF"),
        printer.docName() + QStringLiteral(".pdf"), {QStringLiteral("pdf")});
    if (path.isEmpty()) {
        return false;
    }
    printer.setOutputFormat(QPrinter::PdfFormat);
    printer.setOutputFileName(path);
    return true;
}

} // namespace app
