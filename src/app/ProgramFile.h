#pragma once

#include <QString>

namespace app
{

/// Full path of a program of that name in the folder, as the system ends such names.
[[nodiscard]] QString programFile(const QString& folder, const QString& name);

} // namespace app
