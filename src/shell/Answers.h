#pragma once

#include "shell/CommandLine.h"
#include "shell/Shell.h"

namespace shell
{

/// Answers the line's question about the timetable and writes the file. The line's period, week,
/// day or date, zone and department say what it is about. Requires: a question; a program that has
/// started up. Errors: UsageError for a name that nobody has, rooms or courses that there are none
/// of, a date that is missing, and what the file's form cannot hold; files::ExportError for a file
/// that cannot be written and for an answer that the database has left open; any database error.
/// Returns what the user should know of the file, in French; empty as a rule.
QString writeAnswer(Shell& shell, const CommandLine& line);

} // namespace shell
