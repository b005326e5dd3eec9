#pragma once

#include "shell/Shell.h"

#include <QByteArray>
#include <vector>

namespace shell
{

/// The printed sheets of the pages as a PDF document. Error: runtime::RunTimeError.
[[nodiscard]] QByteArray planAsPdf(const Shell& shell, std::vector<plan::PlanPage> pages);

} // namespace shell
