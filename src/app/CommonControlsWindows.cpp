#include "app/CommonControls.h"

#include <windows.h>

#include <commctrl.h>

namespace app
{

bool initCommonControls()
{
    constexpr DWORD extendedClasses = ICC_USEREX_CLASSES; // combo boxes with pictures
    const INITCOMMONCONTROLSEX wanted = {sizeof(INITCOMMONCONTROLSEX), extendedClasses};
    static_assert(sizeof(wanted) == 8);
    return InitCommonControlsEx(&wanted) != FALSE;
}

} // namespace app
