#pragma once

#include "shell/Shell.h"

#include <QString>

namespace shell
{

/// Writes the plan as it stands into a file, in the form that the file's ending names; with
/// `allPages` every page of the room set, where the form can hold several. The file is replaced as
/// a whole or not at all. Requires: files::formatOf knows the ending. Errors: files::ExportError;
/// those of a refresh and any database error.
void exportPlan(const Shell& shell, const QString& path, bool allPages = false);

} // namespace shell
