#include "shell/UserStore.h"

namespace shell
{

/// A file in the user's folder of configuration.
std::unique_ptr<QSettings> openUserStore()
{
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                       QStringLiteral("Tempora"));
}

} // namespace shell
