#include "app/Printing.h"

#include "print/PrintJob.h"
#include "runtime/RunTimeError.h"
#include "shell/Shell.h"

#include <QPrintDialog>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <algorithm>
#include <exception>
#include <utility>

namespace app
{
namespace
{

/// A printer as sheets need it, and what its queue calls the document.
void prepare(QPrinter& printer, const std::vector<print::Sheet>& sheets)
{
    printer.setResolution(print::kSheetResolution);
    printer.setCreator(QStringLiteral("Tempora"));
    // The name is offered for a PDF file, too, so that a date's "/" would name folders.
    printer.setDocName(QString(sheets.front().heading.title).replace(u'/', u'-'));
    print::layPaper(printer);
}

/// The sheets that the user asked for: all, or those from one number to another.
void keepChosen(std::vector<print::Sheet>& sheets, const QPrinter& printer)
{
    if (printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0) {
        const auto outside = [&printer](const print::Sheet& sheet) {
            return sheet.number < printer.fromPage() || sheet.number > printer.toPage();
        };
        sheets.erase(std::remove_if(sheets.begin(), sheets.end(), outside), sheets.end());
    }
}

bool choosePrinter(QWidget* window, QPrinter& printer, int sheets)
{
    QPrintDialog dialog(&printer, window);
    dialog.setWindowTitle(QStringLiteral("Imprimer le plan"));
    dialog.setOption(QAbstractPrintDialog::PrintPageRange, sheets > 1);
    dialog.setMinMax(1, sheets);
    return dialog.exec() == QDialog::Accepted;
}

/// No exception may pass through the dialog's own event loop: it goes on when the dialog is closed.
void showPreview(QWidget* window, QPrinter& printer, const std::function<void(QPrinter&)>& paint)
{
    QPrintPreviewDialog dialog(&printer, window);
    dialog.setWindowTitle(QStringLiteral("Aperçu avant impression"));
    dialog.resize(1100, 760);
    std::exception_ptr fault;
    QObject::connect(&dialog, &QPrintPreviewDialog::paintRequested, [&](QPrinter* target) {
        try {
            paint(*target);
        } catch (const runtime::RunTimeError&) {
            fault = std::current_exception();
            dialog.reject();
        }
    });
    dialog.exec();
    if (fault) {
        std::rethrow_exception(fault);
    }
}

} // namespace

PrintDialogs platformPrintDialogs(QWidget* window)
{
    return {
        [window](QPrinter& printer, int sheets) { return choosePrinter(window, printer, sheets); },
        [window](QPrinter& printer, const std::function<void(QPrinter&)>& paint) {
            showPreview(window, printer, paint);
        }};
}

Printing::Printing(shell::Shell& shell, PrintDialogs dialogs)
    : m_shell(shell), m_dialogs(std::move(dialogs))
{
    m_shell.form().Command1.click = [this] { Command1_Click(); };
    m_shell.form().PrintPreview.click = [this] { PrintPreview_Click(); };
    m_shell.form().PrintAllPages.click = [this] { PrintAllPages_Click(); };
}

std::vector<print::Sheet> Printing::sheetsOf(std::vector<plan::PlanPage> pages) const
{
    return print::makeSheets(std::move(pages), m_shell.slots(), m_shell.establishment());
}

std::vector<print::Sheet> Printing::shownSheet()
{
    m_shell.refresh().finishRows(); // a refresh may be waiting for this very click to end
    std::vector<plan::PlanPage> pages;
    pages.push_back(m_shell.shownPage());
    return sheetsOf(std::move(pages));
}

void Printing::Command1_Click()
{
    print(shownSheet());
}

void Printing::PrintAllPages_Click()
{
    print(sheetsOf(m_shell.allPages()));
}

void Printing::print(std::vector<print::Sheet> sheets)
{
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer, sheets);
    if (!m_dialogs.choosePrinter(printer, static_cast<int>(sheets.size()))) {
        return;
    }
    prepare(printer, sheets); // another printer may have been chosen
    keepChosen(sheets, printer);
    if (sheets.empty()) {
        return;
    }
    runtime::during(QStringLiteral("Impression du plan sur « %1 »")
                        .arg(printer.outputFileName().isEmpty() ? printer.printerName()
                                                                : printer.outputFileName()),
                    [&] { print::printSheets(printer, sheets); });
}

void Printing::PrintPreview_Click()
{
    const std::vector<print::Sheet> sheets = shownSheet();
    QPrinter printer(QPrinter::HighResolution);
    prepare(printer, sheets);
    m_dialogs.preview(printer, [&sheets](QPrinter& target) { print::printSheets(target, sheets); });
}

} // namespace app
