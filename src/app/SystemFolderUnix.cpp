#include "app/SystemFolder.h"

namespace app
{

/// A package owns the program's folder, and its next version writes it anew.
QString systemFolder()
{
    return QStringLiteral("/etc/tempora");
}

} // namespace app
