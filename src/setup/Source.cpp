#include "setup/Source.h"

#include "setup/DriverAdvice.h"

#include <QFileInfo>
#include <algorithm>

namespace setup
{
namespace
{

/// Words in the names that drivers of a kind are installed under, the best first.
QStringList wordsOfDrivers(SourceKind kind)
{
    switch (kind) {
    case SourceKind::Demo:
    case SourceKind::SqliteFile:
        return {QStringLiteral("SQLite3"), QStringLiteral("SQLite 3")};
    case SourceKind::Server:
        return {QStringLiteral("MariaDB"), QStringLiteral("MySQL")};
    case SourceKind::Access:
        return {QStringLiteral("*.accdb"), QStringLiteral("*.mdb")};
    }
    return {};
}

/// A value that may hold what ends it: between braces, a closing one twice.
QString braced(QString value)
{
    return u'{' + value.replace(u'}', QStringLiteral("}}")) + u'}';
}

QString missingInServer(const Server& server)
{
    if (server.host.trimmed().isEmpty()) {
        return QStringLiteral("Indiquez le nom ou l’adresse du serveur.");
    }
    bool isNumber = false;
    const int port = server.port.toInt(&isNumber);
    if (!isNumber || port < 1 || port > 65535) {
        return QStringLiteral("Le port est un nombre de 1 à 65535 ; 3306 d’ordinaire.");
    }
    if (server.login.isEmpty()) {
        return QStringLiteral("Indiquez le compte avec lequel Tempora lit la base.");
    }
    return server.base.trimmed().isEmpty() ? QStringLiteral("Indiquez le nom de la base.")
                                           : QString();
}

QString missingInFile(const QString& path)
{
    if (path.isEmpty()) {
        return QStringLiteral("Choisissez le fichier de votre base.");
    }
    const QFileInfo file(path);
    if (!file.isFile()) {
        return QStringLiteral("Le fichier « %1 » n’existe pas.").arg(path);
    }
    if (!file.isReadable()) {
        return QStringLiteral("Le fichier « %1 » ne peut pas être lu.").arg(path);
    }
    // SQLite's driver ends the name there, whatever stands around it.
    return path.contains(u';') ? QStringLiteral("Un point-virgule dans le nom du fichier ou d’un "
                                                "dossier arrête le pilote : renommez-le.")
                               : QString();
}

} // namespace

QString driverFor(SourceKind kind, const QStringList& drivers)
{
    for (const QString& word : wordsOfDrivers(kind)) {
        const auto found = std::find_if(drivers.begin(), drivers.end(), [&](const QString& name) {
            return name.contains(word, Qt::CaseInsensitive);
        });
        if (found != drivers.end()) {
            return *found;
        }
    }
    return {};
}

QString ofDriver(SourceKind kind)
{
    switch (kind) {
    case SourceKind::Demo:
    case SourceKind::SqliteFile:
        return QStringLiteral("de SQLite");
    case SourceKind::Server:
        return QStringLiteral("de MariaDB");
    case SourceKind::Access:
        return QStringLiteral("d’Access");
    }
    return {};
}

QString connectStringOf(const Source& source, const QString& driver)
{
    const QString start = QStringLiteral("DRIVER={%1};").arg(driver);
    switch (source.kind) {
    case SourceKind::Demo:
    case SourceKind::SqliteFile:
        return start + QStringLiteral("Database=") + source.file;
    case SourceKind::Access:
        return start + QStringLiteral("DBQ=") + source.file;
    case SourceKind::Server:
        break;
    }
    const Server& server = source.server;
    return start + QStringLiteral("SERVER=%1;PORT=%2;DATABASE=%3;UID=%4;PWD=%5")
                       .arg(braced(server.host.trimmed()), server.port.trimmed(),
                            braced(server.base.trimmed()), braced(server.login),
                            braced(server.password));
}

QString missingIn(const Source& source, const QString& driver)
{
    if (driver.isEmpty()) {
        return QStringLiteral("Le pilote ODBC %1 n’est pas installé sur ce poste. %2")
            .arg(ofDriver(source.kind), howToGetDriver(source.kind));
    }
    switch (source.kind) {
    case SourceKind::Demo:
        return {}; // its file is made
    case SourceKind::Server:
        return missingInServer(source.server);
    case SourceKind::SqliteFile:
    case SourceKind::Access:
        break;
    }
    return missingInFile(source.file);
}

} // namespace setup
