#include "app/Printing.h"

#include "app/PlainTexts.h"
#include "app/PrinterChoice.h"
#include "app/PrinterOutput.h"
#include "app/ScreenFit.h"
#include "engine/Engine.h"
#include "plan/FaultWords.h"
#include "plan/PlanPage.h"
#include "print/Paper.h"
#include "print/PrintJob.h"
#include "runtime/RunTimeError.h"

#include <QMessageBox>
#include <QPrintPreviewDialog>
#include <QPrinter>
#include <QPushButton>
#include <algorithm>
#include <exception>
#include <utility>

namespace app
{
namespace
{

/// A printer as sheets need it, and what its queue calls the document. False when it refuses.
bool prepare(QPrinter& printer, const std::vector<print::Sheet>& sheets)
{
    printer.setResolution(print::kSheetResolution);
    printer.setCreator(QStringLiteral("Tempora"));
    // The name is offered for a PDF file, too, so that a date's "/" would name folders.
    printer.setDocName(QString(sheets.front().heading.title).replace(u'/', u'-'));
    return print::layPaper(printer);
}

/// The sheets that the user asked for: all, or those from one number to another.
void keepChosen(std::vector<print::Sheet>& sheets, const QPrinter& printer)
{
    if (printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0) {
        const int count = static_cast<int>(sheets.size());
        const int first = std::min(printer.fromPage() - 1, count);
        sheets.erase(sheets.begin() + std::clamp(printer.toPage(), first, count), sheets.end());
        sheets.erase(sheets.begin(), sheets.begin() + first);
    }
}

void printSheetsOn(QPrinter& printer, const std::vector<print::Sheet>& sheets)
{
    printOn(printer, [&sheets](QPrinter& target) { print::printSheets(target, sheets); });
}

bool printIncomplete(QWidget* window, const QString& whatIsMissing)
{
    QMessageBox box(QMessageBox::Warning, QStringLiteral("Tempora"), whatIsMissing,
                    QMessageBox::Cancel, window);
    box.setObjectName(QStringLiteral("PrintIncomplete"));
    showPlainly(box);
    const QAbstractButton* print =
        box.addButton(QStringLiteral("Imprimer tout de même"), QMessageBox::AcceptRole);
    box.setDefaultButton(QMessageBox::Cancel);
    box.exec();
    return box.clickedButton() == print;
}

/// No exception may pass through the dialog's own event loop: it goes on when the dialog is closed.
void showPreview(QWidget* window, QPrinter& printer, const std::function<void(QPrinter&)>& paint)
{
    QPrintPreviewDialog dialog(&printer, window);
    dialog.setWindowTitle(QStringLiteral("Aperçu avant impression"));
    constexpr QSize wanted(1100, 760);
    dialog.resize(fittingScreen(wanted, dialog));
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
        [window](const QString& whatIsMissing) { return printIncomplete(window, whatIsMissing); },
        [window](QPrinter& printer, int sheets) {
            return choosePrinter(window, printer, QStringLiteral("Imprimer le plan"), sheets);
        },
        [window](QPrinter& printer, const std::function<void(QPrinter&)>& paint) {
            showPreview(window, printer, paint);
        }};
}

Printing::Printing(engine::Engine& engine, PrintDialogs dialogs,
                   std::function<void(const QString&)> saved)
    : m_engine(engine), m_dialogs(std::move(dialogs)), m_saved(std::move(saved))
{
    m_engine.form().Command1.click = [this] { Command1_Click(); };
    m_engine.form().PrintPreview.click = [this] { PrintPreview_Click(); };
    m_engine.form().PrintAllPages.click = [this] { PrintAllPages_Click(); };
    m_engine.form().PreviewAllPages.click = [this] { PreviewAllPages_Click(); };
}

std::vector<print::Sheet> Printing::shownSheet()
{
    m_engine.finishRefresh(); // one that waits for this click to end has rows to colour
    std::vector<plan::PlanPage> pages;
    pages.push_back(m_engine.shownPage());
    return print::makeSheets(std::move(pages));
}

void Printing::Command1_Click()
{
    print(shownSheet());
}

void Printing::PrintAllPages_Click()
{
    print(print::makeSheets(m_engine.allPages()));
}

bool Printing::mayPrint(const std::vector<print::Sheet>& sheets) const
{
    for (const print::Sheet& sheet : sheets) {
        const QString missing = plan::faultSentence(sheet.page.content);
        if (!missing.isEmpty()) {
            return m_dialogs.printIncomplete(missing);
        }
    }
    return true;
}

void Printing::print(std::vector<print::Sheet> sheets)
{
    if (!mayPrint(sheets)) {
        return;
    }
    QPrinter printer(QPrinter::HighResolution);
    static_cast<void>(prepare(printer, sheets)); // whatever it says, the user may choose another
    if (!m_dialogs.choosePrinter(printer, static_cast<int>(sheets.size()))) {
        return;
    }
    const bool ready = prepare(printer, sheets);
    keepChosen(sheets, printer);
    if (sheets.empty()) {
        return;
    }
    runtime::during(QStringLiteral("Impression du plan sur « %1 »")
                        .arg(printer.outputFileName().isEmpty() ? printer.printerName()
                                                                : printer.outputFileName()),
                    [&] {
                        if (!ready) {
                            throw runtime::RunTimeError(runtime::ErrorNumber::PrinterError);
                        }
                        printSheetsOn(printer, sheets);
                    });
    if (!printer.outputFileName().isEmpty()) {
        m_saved(printer.outputFileName());
    }
}

void Printing::PrintPreview_Click()
{
    preview(shownSheet());
}

void Printing::PreviewAllPages_Click()
{
    preview(print::makeSheets(m_engine.allPages()));
}

void Printing::preview(const std::vector<print::Sheet>& sheets) const
{
    QPrinter printer(QPrinter::HighResolution);
    static_cast<void>(prepare(printer, sheets));
    m_dialogs.preview(printer, [&sheets](QPrinter& target) { printSheetsOn(target, sheets); });
}

} // namespace app
