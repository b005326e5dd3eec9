#pragma once

#include "shell/Shell.h"

#include <QByteArray>
#include <QString>
#include <QStringList>
#include <stdexcept>

namespace shell
{

/// An export file that cannot be written: one line, in French, with the reason.
class ExportError : public std::runtime_error
{
public:
    explicit ExportError(const QString& message) : std::runtime_error(message.toStdString()) {}
};

/// Writes the plan as it stands into a file, in the form that the file's ending names (json, png,
/// pdf, csv, html); with `allPages` every page of the room set, where the form can hold several.
/// The file is replaced as a whole or not at all.
/// Errors: ExportError; with `allPages` those of a refresh and any database error.
void exportPlan(Shell& shell, const QString& path, bool allPages = false);

/// The endings that an export file can have, in lower case.
[[nodiscard]] const QStringList& exportEndings();
/// Whether a file of this ending can hold several pages.
[[nodiscard]] bool holdsAllPages(const QString& ending);

/// Writes the bytes as a whole or not at all. Error: ExportError.
void writeWholeFile(const QString& path, const QByteArray& bytes);

} // namespace shell
