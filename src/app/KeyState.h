#pragma once

#include "absences/AsyncKeyState.h"

#include <memory>

namespace app
{

/// The keyboard's asynchronous state on this platform: the system's own on Windows; elsewhere one
/// with the same meaning, kept from the application's events as long as it lives.
/// Requires: the application object exists, and outlives what is returned.
[[nodiscard]] std::unique_ptr<absences::AsyncKeyState> makeKeyState();

} // namespace app
