#pragma once

#include "print/Sheet.h"

#include <QString>
#include <functional>
#include <vector>

class QPrinter;
class QWidget;

namespace engine
{
class Engine;
}

namespace app
{

/// The dialogs of printing; tests answer for them.
struct PrintDialogs {
    /// Asks whether a plan that lacks something is to be printed all the same.
    std::function<bool(const QString& whatIsMissing)> printIncomplete;
    /// Lets the user choose a printer and which of the `sheets` to print. False: nothing is.
    std::function<bool(QPrinter& printer, int sheets)> choosePrinter;
    /// Shows what `paint` paints on the printer, until the user closes it.
    std::function<void(QPrinter& printer, const std::function<void(QPrinter&)>& paint)> preview;
};

/// The platform's own dialogs, over a window. Without a printer they offer a PDF file.
[[nodiscard]] PrintDialogs platformPrintDialogs(QWidget* window);

/// The buttons "Imprimer", "Aperçu" and both for all pages. Sheets are made from values,
/// so printing never changes what the window shows.
class Printing
{
public:
    /// Ties the buttons of the program's form to this object; both live as long as the window.
    /// `saved` is told the path where sheets were printed into a file.
    Printing(
        engine::Engine& engine, PrintDialogs dialogs,
        std::function<void(const QString& path)> saved = [](const QString&) {});

    /// "Imprimer": the page that the window shows, on one sheet.
    /// Error: PrinterError; so below.
    void Command1_Click();
    /// "Aperçu": the same sheet on the screen.
    void PrintPreview_Click();
    /// "Imprimer toutes les pages": a sheet for every page of the room set.
    /// Errors: those of a refresh and any database error as well.
    void PrintAllPages_Click();
    /// "Aperçu de toutes les pages": the same sheets on the screen. Errors: likewise.
    void PreviewAllPages_Click();

private:
    void preview(const std::vector<print::Sheet>& sheets) const;
    [[nodiscard]] std::vector<print::Sheet> shownSheet();
    [[nodiscard]] bool mayPrint(const std::vector<print::Sheet>& sheets) const;
    void print(std::vector<print::Sheet> sheets);

    engine::Engine& m_engine;
    PrintDialogs m_dialogs;
    std::function<void(const QString&)> m_saved;
};

} // namespace app
