#pragma once

#include "runtime/RunTimeError.h"

#include <QString>

class QWidget;

namespace app
{

/// Shows a run-time error in a message box, on a machine without a display on standard error.
void reportRunTimeError(QWidget* parent, const runtime::RunTimeError& error);

/// Writes lines to standard output or standard error as UTF-8.
void writeOutput(const QString& text);
void writeError(const QString& text);

} // namespace app
