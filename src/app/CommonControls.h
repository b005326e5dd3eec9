#pragma once

namespace app
{

/// Makes the classes of the system's own controls known, where a program has to ask for them before
/// its first window: on Windows (InitCommonControlsEx). What goes wrong there is no fault: dialogs
/// of the system's then look plainer. True when nothing did.
bool initCommonControls();

} // namespace app
