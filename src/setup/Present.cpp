#include "setup/Present.h"

#include "db/DataSources.h"
#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"
#include "setup/Registration.h"

namespace setup
{
namespace
{

bool isOn(const shell::Settings& settings, const QString& key)
{
    bool on = false;
    runtime::skipOnError(
        [&] { on = runtime::toBoolean(settings.get(key, QStringLiteral("False"))); });
    return on;
}

/// The first of the words that the data source has: drivers know some under two names.
QString firstOf(const QString& dataSource, const QStringList& names)
{
    for (const QString& name : names) {
        const QString value = db::wordOf(dataSource, name);
        if (!value.isEmpty()) {
            return value;
        }
    }
    return {};
}

Server serverOf(const QString& dataSource)
{
    Server server;
    server.host = db::wordOf(dataSource, QStringLiteral("Server"));
    const QString port = db::wordOf(dataSource, QStringLiteral("Port"));
    server.port = port.isEmpty() ? server.port : port;
    server.login = firstOf(dataSource, {QStringLiteral("User"), QStringLiteral("UID")});
    server.password = firstOf(dataSource, {QStringLiteral("Password"), QStringLiteral("PWD")});
    server.base = db::wordOf(dataSource, QStringLiteral("Database"));
    return server;
}

Present ofDataSource(const QString& name)
{
    const QString driver = db::wordOf(name, QStringLiteral("Driver"));
    if (driver.contains(QStringLiteral("SQLite"), Qt::CaseInsensitive)) {
        const QString file = db::wordOf(name, QStringLiteral("Database"));
        return {QStringLiteral("Fichier SQLite ") + file, Source{SourceKind::SqliteFile, file, {}}};
    }
    const Server server = serverOf(name);
    if (!server.host.isEmpty()) {
        return {QStringLiteral("Serveur ") + server.host, Source{SourceKind::Server, {}, server}};
    }
    const QString file = db::wordOf(name, QStringLiteral("DBQ"));
    if (!file.isEmpty()) {
        return {QStringLiteral("Base Access ") + file, Source{SourceKind::Access, file, {}}};
    }
    return {driver.isEmpty() ? QString() : QStringLiteral("Source de données « %1 »").arg(name),
            std::nullopt};
}

/// A file that cannot be read is named nevertheless: it is what is set up.
Present ofServersFile(const QString& baseName, const db::ConfigurationFolders& folders)
{
    Present present{
        QStringLiteral("Serveur MariaDB ou MySQL, fichier app_data/%1.php").arg(baseName),
        std::nullopt};
    runtime::skipOnError([&] {
        const db::PhpConfiguration php =
            db::readPhpConfiguration(db::configurationFile(baseName, folders));
        present.source =
            Source{SourceKind::Server, {}, {php.host, php.port, php.login, php.password, php.base}};
    });
    return present;
}

} // namespace

Present presentOf(const shell::Settings& settings, const db::ConfigurationFolders& folders)
{
    if (isOn(settings, QStringLiteral("Mysql"))) {
        return ofServersFile(settings.get(QStringLiteral("Base_Sql"), QString(kServersFile)),
                             folders);
    }
    return ofDataSource(settings.get(QStringLiteral("Base"), QString(kDataSource)).trimmed());
}

} // namespace setup
