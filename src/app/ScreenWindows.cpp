#include "app/Screen.h"

namespace app
{

bool hasDisplay()
{
    return true;
}

/// The platform that draws nowhere else has no fonts here, and the window's own needs no window.
void drawInMemory() {}

} // namespace app
