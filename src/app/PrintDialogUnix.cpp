#include "app/PrinterChoice.h"

namespace app
{

bool printDialogTakesFiles()
{
    return true;
}

} // namespace app
