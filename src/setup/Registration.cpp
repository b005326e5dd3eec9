#include "setup/Registration.h"

#include "db/ConnectString.h"
#include "db/DataSources.h"
#include "files/WholeFile.h"
#include "runtime/RunTimeError.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryFile>
#include <algorithm>

namespace setup
{
namespace
{

using runtime::ErrorNumber;
using runtime::RunTimeError;

QString folderOfServers(const QString& applicationFolder)
{
    return applicationFolder + QStringLiteral("/app_data");
}

/// By trying: on Windows what a folder says of itself leaves its rights out.
bool canWriteIn(const QString& folder)
{
    const QFileInfo there(folder);
    QTemporaryFile probe((there.exists() ? folder : there.path()) + QStringLiteral("/XXXXXX"));
    return probe.open();
}

/// Whether all of it can stand in the program's connection string, which has nothing around values.
bool canBePassedOn(const Server& server)
{
    const QString all = server.host + server.port + server.login + server.password + server.base;
    return std::none_of(all.begin(), all.end(), [](QChar character) {
        return character == u';' || character == u'{' || character == u'}';
    });
}

bool belongsToAPackage(const db::ConfigurationFolders& folders)
{
    return !folders.system.isEmpty() && QFileInfo::exists(folders.system);
}

QString lineOf(const char* variable, const QString& value)
{
    if (value.contains(u'\n') || value.contains(u'\r')) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    return u'$' + QLatin1String(variable) + QStringLiteral("=\"") + value + QStringLiteral("\";\n");
}

/// Before a password comes to stand in it: a file that is written anew keeps the rights it has.
void keepForOwner(const QString& path)
{
    if (QFile file(path); !file.exists() && !file.open(QIODevice::WriteOnly)) {
        throw RunTimeError(ErrorNumber::PathFileAccess);
    }
    QFile::setPermissions(path, QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

void writePhpFile(const Server& server, const QString& applicationFolder)
{
    const QString folder = folderOfServers(applicationFolder);
    const QString path = folder + u'/' + QString(kServersFile) + QStringLiteral(".php");
    runtime::during(QStringLiteral("Enregistrement du fichier « %1 »").arg(path), [&] {
        if (!QDir().mkpath(folder)) {
            throw RunTimeError(ErrorNumber::PathFileAccess);
        }
        keepForOwner(path);
        try {
            files::writeWholeFile(path, phpFileOf(server));
        } catch (const files::ExportError& error) {
            throw RunTimeError(ErrorNumber::PathFileAccess, QString::fromUtf8(error.what()));
        }
    });
}

db::DataSource dataSourceOf(const Source& source, const QString& driver)
{
    db::DataSource found{QString(kDataSource), driver, {}};
    const Server& server = source.server;
    switch (source.kind) {
    case SourceKind::Demo:
    case SourceKind::SqliteFile:
        found.words = {{QStringLiteral("Database"), source.file}};
        break;
    case SourceKind::Access:
        found.words = {{QStringLiteral("DBQ"), source.file}};
        break;
    case SourceKind::Server:
        found.words = {{QStringLiteral("Server"), server.host.trimmed()},
                       {QStringLiteral("Port"), server.port.trimmed()},
                       {QStringLiteral("Database"), server.base.trimmed()},
                       {QStringLiteral("User"), server.login},
                       {QStringLiteral("Password"), server.password}};
        break;
    }
    return found;
}

} // namespace

Route routeOf(const Source& source, const QStringList& drivers,
              const db::ConfigurationFolders& folders)
{
    const bool isByFile = source.kind == SourceKind::Server &&
                          drivers.contains(QString(kServersDriver)) &&
                          canBePassedOn(source.server) && !belongsToAPackage(folders) &&
                          canWriteIn(folderOfServers(folders.application));
    return isByFile ? Route::PhpFile : Route::DataSource;
}

QString driverOn(Route route, SourceKind kind, const QStringList& drivers)
{
    return route == Route::PhpFile ? QString(kServersDriver) : driverFor(kind, drivers);
}

void registerSource(const Source& source, Route route, const QString& driver,
                    const QString& applicationFolder, shell::Settings& settings)
{
    if (route == Route::PhpFile) {
        writePhpFile(source.server, applicationFolder);
        settings.save(QStringLiteral("Base_Sql"), QString(kServersFile));
        settings.save(QStringLiteral("Mysql"), QStringLiteral("True"));
        return;
    }
    db::writeDataSource(dataSourceOf(source, driver));
    settings.save(QStringLiteral("Base"), QString(kDataSource));
    settings.save(QStringLiteral("Mysql"), QStringLiteral("False"));
}

void saveRecommendations(const std::vector<Recommendation>& recommendations,
                         shell::Settings& settings)
{
    for (const Recommendation& one : recommendations) {
        const QString& value = one.isProposed ? one.value : one.refused;
        if (!meanTheSame(settings.get(one.key, one.refused), value)) {
            settings.save(one.key, value);
        }
    }
}

QByteArray phpFileOf(const Server& server)
{
    const QString text = QStringLiteral("<?php\n") + lineOf("host", server.host.trimmed()) +
                         lineOf("login", server.login) + lineOf("mot_de_passe", server.password) +
                         lineOf("Base", server.base.trimmed()) +
                         lineOf("port", server.port.trimmed()) + QStringLiteral("?>\n");
    return text.toUtf8();
}

} // namespace setup
