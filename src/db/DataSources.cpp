#include "db/DataSources.h"

#include "db/OdbcInstaller.h"
#include "runtime/RunTimeError.h"

namespace db
{
namespace
{

using runtime::ErrorNumber;
using runtime::RunTimeError;

void refuseSeveralLines(const QString& text)
{
    if (text.contains(u'\n') || text.contains(u'\r') || text.contains(QChar(0))) {
        throw RunTimeError(ErrorNumber::InvalidProcedureCall);
    }
}

void require(bool isWritten)
{
    if (!isWritten) {
        throw RunTimeError(ErrorNumber::PathFileAccess, installerFault());
    }
}

} // namespace

QStringList installedDrivers()
{
    return driversOfManager();
}

QString wordOf(const QString& dataSource, const QString& word)
{
    return profileOfManager(dataSource, word);
}

void writeDataSource(const DataSource& source)
{
    runtime::during(
        QStringLiteral("Enregistrement de la source de données « %1 »").arg(source.name), [&] {
            refuseSeveralLines(source.name + source.driver);
            for (const auto& [word, value] : source.words) {
                refuseSeveralLines(word + value);
            }
            keepUsersSource(source.name);
            require(registerSource(source.name, source.driver));
            for (const auto& [word, value] : source.words) {
                require(writeProfile(source.name, word, value));
            }
        });
}

} // namespace db
