#pragma once

#include "setup/Source.h"

#include <QString>

namespace setup
{

/// How a person gets the driver that opens such a source on this platform, as a sentence in French.
[[nodiscard]] QString howToGetDriver(SourceKind kind);

} // namespace setup
