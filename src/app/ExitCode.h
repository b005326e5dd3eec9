#pragma once

namespace app
{

/// What the program tells whoever started it.
enum ExitCode : int {
    kDone = 0,
    kFailed = 1, ///< a fault: database, settings, a file that cannot be written
    kUsage = 2,  ///< a mistake on the command line
};

} // namespace app
