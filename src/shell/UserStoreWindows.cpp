#include "shell/UserStore.h"

namespace shell
{

/// Where the platform's GetSetting and SaveSetting keep them: an existing installation keeps its
/// settings.
std::unique_ptr<QSettings> openUserStore()
{
    return std::make_unique<QSettings>(
        QStringLiteral("HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\Tempora"),
        QSettings::NativeFormat);
}

} // namespace shell
