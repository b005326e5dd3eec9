#pragma once

#include "db/Diagnostics.h"

#include <QString>

namespace db
{

/// Why a connection could not be opened, as a part of a sentence in French: what can be told of it
/// to somebody who is to mend it. `driver`: the one that the connection string names; empty where
/// it names a data source.
[[nodiscard]] QString connectFaultWords(const Diagnostics& diagnostics, const QString& driver);

} // namespace db
