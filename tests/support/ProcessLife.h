#pragma once

#include <QtGlobal>

namespace test
{

/// Whether a process with that number is running.
[[nodiscard]] bool isAlive(qint64 processId);

} // namespace test
