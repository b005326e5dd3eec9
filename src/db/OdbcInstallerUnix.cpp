#include "db/OdbcInstaller.h"

#include "db/OdbcApi.h"

#include <QFile>
#include <array>
#include <odbcinst.h> // its narrow functions: they pass bytes on as they are
#include <pwd.h>
#include <unistd.h>

namespace db
{
namespace
{

constexpr const char* kFile = "odbc.ini"; ///< by this name the manager knows the user's, too
constexpr std::size_t kMostBytes = 65535;

} // namespace

/// As the manager has it: the home of the account, whatever HOME says (sudo keeps the caller's).
QString usersFile()
{
    QString told = qEnvironmentVariable("ODBCINI");
    if (!told.isEmpty()) {
        return told;
    }
    const passwd* account = getpwuid(getuid());
    return account == nullptr ? QString()
                              : QFile::decodeName(account->pw_dir) + QStringLiteral("/.odbc.ini");
}

QStringList driversOfManager()
{
    std::array<char, kMostBytes> names{};
    WORD size = 0;
    QStringList drivers;
    if (SQLGetInstalledDrivers(names.data(), kMostBytes, &size) != 0) {
        const QByteArray all(names.data(), size);
        for (const QByteArray& name : all.split('\0')) {
            if (!name.isEmpty()) {
                drivers << QString::fromUtf8(name);
            }
        }
    }
    return drivers;
}

QString profileOfManager(const QString& section, const QString& word)
{
    std::array<char, kMostBytes> value{};
    SQLSetConfigMode(ODBC_BOTH_DSN);
    SQLGetPrivateProfileString(section.toUtf8().constData(), word.toUtf8().constData(), "",
                               value.data(), static_cast<int>(value.size()) - 1, kFile);
    return QString::fromUtf8(value.data());
}

bool writeProfile(const QString& section, const QString& word, const QString& value)
{
    SQLSetConfigMode(ODBC_USER_DSN);
    const QByteArray bytes = value.toUtf8();
    return SQLWritePrivateProfileString(section.toUtf8().constData(), word.toUtf8().constData(),
                                        value.isEmpty() ? nullptr : bytes.constData(), kFile) != 0;
}

bool registerSource(const QString& name, const QString& driver)
{
    SQLSetConfigMode(ODBC_USER_DSN);
    return SQLWriteDSNToIni(name.toUtf8().constData(), driver.toUtf8().constData()) != 0;
}

QString installerFault()
{
    std::array<char, 1024> words{};
    DWORD code = 0;
    WORD size = 0;
    const bool isTold =
        SQLInstallerError(1, &code, words.data(), static_cast<WORD>(words.size() - 1), &size) ==
        SQL_SUCCESS;
    return isTold ? QString::fromUtf8(words.data()) : QString();
}

void keepUsersSource(const QString& /*name*/)
{
    const QString path = usersFile();
    QFile file(path);
    if (!file.exists()) {
        if (!file.open(QIODevice::WriteOnly)) {
            return; // what is written next fails, and tells
        }
        file.close();
    } else {
        QFile::copy(path, path + QString(kCopyEnding)); // the first one stays
    }
    file.setPermissions(QFileDevice::ReadOwner | QFileDevice::WriteOwner);
}

} // namespace db
