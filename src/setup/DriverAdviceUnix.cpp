#include "setup/DriverAdvice.h"

namespace setup
{

QString howToGetDriver(SourceKind kind)
{
    switch (kind) {
    case SourceKind::Demo:
    case SourceKind::SqliteFile:
        return QStringLiteral("Installez le paquet Debian « libsqliteodbc ».");
    case SourceKind::Server:
        return QStringLiteral("Installez le paquet Debian « odbc-mariadb ».");
    case SourceKind::Access:
        return QStringLiteral("Une base Access se lit sous Windows.");
    }
    return {};
}

bool readsAccess()
{
    return false;
}

} // namespace setup
