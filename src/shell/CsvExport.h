#pragma once

#include "shell/Shell.h"

#include <QByteArray>
#include <QStringList>
#include <vector>

namespace shell
{

/// One line per box, for spreadsheets: UTF-8 with a byte order mark, fields separated by ";" and
/// quoted where needed, lines ended by CR LF.
[[nodiscard]] QByteArray planAsCsv(const Shell& shell, std::vector<plan::PlanPage> pages);

/// One line of such a file, its end included. What a spreadsheet would take for a formula is led
/// by an apostrophe: nobody's name may become a program on somebody's machine.
[[nodiscard]] QString csvLine(const QStringList& cells);

} // namespace shell
