#pragma once

#include "shell/Shell.h"

#include <QByteArray>
#include <QString>
#include <stdexcept>

namespace shell
{

/// An export file that cannot be written: one line, in French, with the reason.
class ExportError : public std::runtime_error
{
public:
    explicit ExportError(const QString& message) : std::runtime_error(message.toStdString()) {}
};

/// Writes the plan as it stands into a file, in the form that the file's ending names (json, png).
/// The file is replaced as a whole or not at all. Error: ExportError.
void exportPlan(const Shell& shell, const QString& path);

/// Writes the bytes as a whole or not at all. Error: ExportError.
void writeWholeFile(const QString& path, const QByteArray& bytes);

} // namespace shell
