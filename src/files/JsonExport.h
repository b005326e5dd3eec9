#pragma once

#include "files/PlanDocument.h"

#include <QByteArray>

namespace files
{

/// The plan as one JSON object (UTF-8), from the very values that the window draws.
[[nodiscard]] QByteArray planAsJson(const PlanDocument& document);

} // namespace files
