#pragma once

#include <QString>

namespace test
{

/// Where ODBC's manager looks for data sources, besides the file that ODBCINI names: on Windows the
/// user's registry. `lines` as in that file, "Driver=…" among them.
void addToManager(const QString& name, const QString& lines);
/// Takes it away again.
void removeFromManager(const QString& name);

} // namespace test
