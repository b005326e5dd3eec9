#pragma once

#include "shell/Shell.h"

#include <QString>
#include <optional>

namespace shell
{

/// What an export holds.
struct ExportChoice {
    bool allPages = false;        ///< every page of the room set, where the form can hold several
    bool allowIncomplete = false; ///< written although the database has failed
    /// Seconds after which the page loads itself again, where the form can.
    std::optional<int> refresh = std::nullopt;
};

/// Writes the plan as it stands into a file, in the form that the file's ending names. The file is
/// replaced as a whole or not at all. Returns what the user should know of a file that was written,
/// in French; empty as a rule.
/// Requires: files::formatOf knows the ending. Errors: files::ExportError, also for a plan that the
/// database has left incomplete; those of a refresh and any database error.
QString exportPlan(const Shell& shell, const QString& path, ExportChoice choice = {});

} // namespace shell
