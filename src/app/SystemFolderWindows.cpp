#include "app/SystemFolder.h"

namespace app
{

/// `app_data` lies beside the program, as the web application's installation puts it there.
QString systemFolder()
{
    return {};
}

} // namespace app
