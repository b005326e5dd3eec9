#pragma once

#include "runtime/RunTimeError.h"

#include <QString>
#include <functional>
#include <optional>

class QWidget;

namespace app
{

/// What a message offers beside its "OK".
struct WayOut {
    QString label;
    std::function<void()> take;
};

/// Writes a run-time error to standard error, and shows it in a message box where there is a
/// display: what it means in French, and the platform's number and text beneath.
void reportRunTimeError(QWidget* parent, const runtime::RunTimeError& error,
                        const std::optional<WayOut>& wayOut = std::nullopt);
/// Shows a message box with a sentence and what is to stand beneath it; nothing without a display.
void showFault(QWidget* parent, const QString& text, const QString& beneath,
               const std::optional<WayOut>& wayOut = std::nullopt);

/// Writes lines to standard output or standard error as UTF-8.
void writeOutput(const QString& text);
void writeError(const QString& text);

} // namespace app
