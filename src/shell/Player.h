#pragma once

#include "shell/CommandLine.h"
#include "shell/Shell.h"

namespace shell
{

/// Chooses the period of the command line. Error: UsageError for one that the database does not
/// have.
void choosePeriod(Shell& shell, const CommandLine& line);

/// Plays on the started program the events of a user who makes the choices of the command line:
/// period, mode, exam week, display options, week kind, make-up, subject filter, rooms per page,
/// room filter, counting, day or date, pages. The day is chosen again when make-up or counting
/// would not show otherwise. Stops when the window is closed in the middle of a redraw.
/// Errors: UsageError for a period, department or subject that the database does not have;
/// runtime::RunTimeError of the handlers.
void play(Shell& shell, const CommandLine& line);

} // namespace shell
