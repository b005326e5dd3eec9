#pragma once

#include "runtime/RunTimeError.h"

#include <QString>

class QWidget;

namespace app
{

/// Writes a run-time error to standard error, and shows it in a message box where there is a
/// display: what it means in French, and the platform's number and text beneath.
void reportRunTimeError(QWidget* parent, const runtime::RunTimeError& error);
/// Shows a message box with a sentence and what is to stand beneath it; nothing without a display.
void showFault(QWidget* parent, const QString& text, const QString& beneath);

/// Writes lines to standard output or standard error as UTF-8.
void writeOutput(const QString& text);
void writeError(const QString& text);

} // namespace app
