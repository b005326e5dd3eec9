#pragma once

#include "demo/Inserts.h"
#include "demo/Options.h"

namespace demo
{

/// Sends the statements that make the whole demo database, on an empty one: tables, rows in one
/// transaction, indexes. Needs the memory of one period's timetable, however many there are.
/// Error: std::invalid_argument for options outside their limits; what the sink throws passes.
void writeDatabase(const FacultyOptions& options, Flavour flavour, const StatementSink& sink);

} // namespace demo
