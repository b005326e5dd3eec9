#include "db/FileIdentity.h"

namespace db
{

/// A file that is open keeps its name there.
FileIdentity fileIdentity(const QString& /*path*/)
{
    return {};
}

} // namespace db
