#pragma once

#include "setup/Source.h"

#include <QString>

namespace setup
{

/// How a person gets the driver that opens such a source on this platform, as a sentence in French.
[[nodiscard]] QString howToGetDriver(SourceKind kind);

/// Whether there can be a driver for Access on this platform.
[[nodiscard]] bool readsAccess();

} // namespace setup
