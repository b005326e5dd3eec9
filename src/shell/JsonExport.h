#pragma once

#include "shell/Shell.h"

#include <QByteArray>

namespace shell
{

/// The plan as one JSON object (UTF-8), from the very values that the window draws.
[[nodiscard]] QByteArray planAsJson(const Shell& shell);

} // namespace shell
