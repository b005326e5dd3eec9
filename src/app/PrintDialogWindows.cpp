#include "app/PrinterChoice.h"

namespace app
{

/// Files are a printer of the system's own there; where that one is gone, too, Qt shows no dialog.
bool printDialogTakesFiles()
{
    return false;
}

} // namespace app
