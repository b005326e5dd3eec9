#pragma once

#include "db/Diagnostics.h"

#include <QString>

namespace db
{

/// Why a connection could not be opened, as a part of a sentence in French: what can be told of it
/// to somebody who is to mend it.
[[nodiscard]] QString connectFaultWords(const Diagnostics& diagnostics);

} // namespace db
