#pragma once

#include <QString>

namespace app
{

/// Colours, spacing and fonts of the window.
[[nodiscard]] QString windowStyleSheet();

} // namespace app
