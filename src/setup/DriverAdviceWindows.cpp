#include "setup/DriverAdvice.h"

namespace setup
{

/// The program has 64 bits, and so must its drivers.
QString howToGetDriver(SourceKind kind)
{
    switch (kind) {
    case SourceKind::Demo:
    case SourceKind::SqliteFile:
        return QStringLiteral("Installez « SQLite3 ODBC Driver », 64 bits : pilote-sqlite.exe, "
                              "dans le dossier de Tempora.");
    case SourceKind::Server:
        return QStringLiteral("Installez le pilote ODBC de MariaDB ou de MySQL, 64 bits.");
    case SourceKind::Access:
        return QStringLiteral(
            "Installez le moteur de base de données Access de Microsoft, 64 bits.");
    }
    return {};
}

bool readsAccess()
{
    return true;
}

} // namespace setup
