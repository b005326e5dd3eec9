#pragma once

namespace app
{

/// Whether there is a screen for a window.
[[nodiscard]] bool hasDisplay();

/// Before the toolkit starts, for a program that shows nothing: an export draws in memory, with the
/// same fonts whether or not there is a screen.
void drawInMemory();

} // namespace app
