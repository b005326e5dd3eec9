#pragma once

#include "files/PlanDocument.h"

#include <QByteArray>
#include <QStringList>

namespace files
{

/// One line per box, for spreadsheets: UTF-8 with a byte order mark, fields separated by ";" and
/// quoted where needed, lines ended by CR LF.
[[nodiscard]] QByteArray planAsCsv(const PlanDocument& document);

/// One line of such a file, its end included. What a spreadsheet would take for a formula is led
/// by an apostrophe, also inside a cell where another separator than ";" would begin one: nobody's
/// name may become a program on somebody's machine.
[[nodiscard]] QString csvLine(const QStringList& cells);

} // namespace files
