#include "db/ConnectString.h"

#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

#include <QFile>
#include <QFileInfo>
#include <QRegularExpression>
#include <QStringDecoder>
#include <array>

namespace db
{
namespace
{

using runtime::ErrorNumber;
using runtime::RunTimeError;

/// The option bits of the MySQL driver: column width, found rows, dynamic cursor.
constexpr int kMySqlOption = 35;

/// A variable of the PHP file: what its line starts with and how many characters stand before its
/// value when the line has the one form that the web application writes: $host="name";
struct Variable {
    QLatin1String name;
    qsizetype charactersBefore = 0;
    QString PhpConfiguration::*value = nullptr;
};

/// The closing quote and the semicolon.
constexpr qsizetype kCharactersAfter = 2;

QString decoded(const QByteArray& bytes)
{
    QStringDecoder decoder(QStringDecoder::Utf8);
    QString text = decoder(bytes);
    return decoder.hasError() ? QString::fromLatin1(bytes) : text;
}

QStringList linesOf(const QString& path)
{
    QFile file(path);
    if (!file.open(QIODevice::ReadOnly)) {
        RunTimeError error(ErrorNumber::FileNotFound);
        error.addActivity(QStringLiteral("Lecture du fichier de configuration « %1 »").arg(path));
        throw error;
    }
    static const QRegularExpression lineEnd(QStringLiteral("\r\n|\r|\n"));
    return decoded(file.readAll()).split(lineEnd);
}

/// A line that is shorter than what is dropped asks for a text of negative length, which the
/// legacy platform refuses.
QString valueIn(const QString& line, qsizetype charactersBefore)
{
    const qsizetype length = line.size() - charactersBefore - kCharactersAfter;
    if (length < 0) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
    return line.mid(charactersBefore, length);
}

QString mySqlConnectString(const PhpConfiguration& php)
{
    // No semicolon stands between the port and OPTION. The driver reads the port up to the first
    // character that is no digit; installations run with this very text.
    return QStringLiteral("DRIVER={MySQL ODBC 3.51 Driver};SERVER=") + php.host +
           QStringLiteral(";DATABASE=") + php.base + QStringLiteral(";USER=") + php.login +
           QStringLiteral(";PASSWORD=") + php.password + QStringLiteral(";port=") + php.port +
           QStringLiteral("OPTION=") + QString::number(kMySqlOption);
}

} // namespace

PhpConfiguration readPhpConfiguration(const QString& path)
{
    static const std::array<Variable, 5> variables = {{
        {QLatin1String("$host"), 7, &PhpConfiguration::host},
        {QLatin1String("$login"), 8, &PhpConfiguration::login},
        {QLatin1String("$mot_de_passe"), 15, &PhpConfiguration::password},
        {QLatin1String("$Base"), 7, &PhpConfiguration::base},
        {QLatin1String("$port"), 7, &PhpConfiguration::port},
    }};
    PhpConfiguration configuration;
    for (const QString& line : linesOf(path)) {
        for (const Variable& variable : variables) {
            if (line.startsWith(variable.name)) {
                configuration.*variable.value = valueIn(line, variable.charactersBefore);
            }
        }
    }
    return configuration;
}

QString configurationFile(const QString& baseName, const ConfigurationFolders& folders)
{
    const auto fileIn = [&baseName](const QString& folder) {
        return folder + QStringLiteral("/app_data/") + baseName + QStringLiteral(".php");
    };
    const QString own = fileIn(folders.application);
    const bool isSystems = !folders.system.isEmpty() && !QFileInfo::exists(own) &&
                           QFileInfo::exists(fileIn(folders.system));
    return isSystems ? fileIn(folders.system) : own;
}

ConnectStrings BuildConnectString(const QString& baseName, bool useMySql,
                                  const ConfigurationFolders& folders)
{
    const QString dsn = QStringLiteral("DSN=") + runtime::trimBlanks(baseName);
    if (!useMySql) {
        return {dsn, dsn};
    }
    return {mySqlConnectString(readPhpConfiguration(configurationFile(baseName, folders))), dsn};
}

} // namespace db
