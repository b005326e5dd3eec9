#pragma once

namespace app
{

/// How all windows of the program look, and what the desktop knows them by: before and after the
/// application object is made.
void chooseStyle();
void dressWindows();

} // namespace app
