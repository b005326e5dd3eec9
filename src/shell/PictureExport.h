#pragma once

#include "shell/Shell.h"

#include <QByteArray>

namespace shell
{

/// The whole plan with its header as a PNG picture at 96 dots per inch.
[[nodiscard]] QByteArray planAsPng(const Shell& shell);

} // namespace shell
