#pragma once

#include <QString>

class QPrinter;
class QWidget;

namespace app
{

/// Lets the user choose what to print on, in a dialog of that title: a printer or a file, and which
/// of so many sheets. False when the user turns it down.
[[nodiscard]] bool choosePrinter(QWidget* window, QPrinter& printer, const QString& title,
                                 int sheets);

/// Lets the user name a PDF file to print into, where there is no printer. False when the user
/// turns it down.
[[nodiscard]] bool choosePdfFile(QWidget* window, QPrinter& printer);

/// Whether the platform's own dialog prints into files, too, and so serves without any printer.
[[nodiscard]] bool printDialogTakesFiles();

} // namespace app
