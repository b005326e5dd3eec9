#pragma once

#include "demo/Options.h"

#include <QString>

namespace demo
{

/// Writes the faculty as a script for MariaDB or MySQL, to be run in an empty database; "-" is the
/// standard output. Error: std::runtime_error with the reason; no half file is left.
void writeMariaDbScript(const FacultyOptions& options, const QString& path);

/// Writes the faculty as an SQLite database file; an older file of that name is replaced once the
/// new one is complete. Error: std::runtime_error with the reason; no half file is left.
void writeSqliteFile(const FacultyOptions& options, const QString& path);

} // namespace demo
