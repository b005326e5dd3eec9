#include "db/OdbcInstaller.h"

#include "db/OdbcApi.h"

#include <array>
#include <odbcinst.h>

namespace db
{
namespace
{

constexpr const wchar_t* kFile = L"odbc.ini"; ///< the registry, under this name
constexpr std::size_t kMostCharacters = 32767;

std::wstring wide(const QString& text)
{
    return text.toStdWString();
}

} // namespace

QStringList driversOfManager()
{
    std::array<wchar_t, kMostCharacters> names{};
    WORD size = 0;
    QStringList drivers;
    if (SQLGetInstalledDriversW(names.data(), kMostCharacters, &size) != 0) {
        const QString all = QString::fromWCharArray(names.data(), size);
        drivers = all.split(QChar(0), Qt::SkipEmptyParts);
    }
    return drivers;
}

QString profileOfManager(const QString& section, const QString& word)
{
    std::array<wchar_t, kMostCharacters> value{};
    SQLSetConfigMode(ODBC_BOTH_DSN);
    SQLGetPrivateProfileStringW(wide(section).c_str(), wide(word).c_str(), L"", value.data(),
                                static_cast<int>(value.size()) - 1, kFile);
    return QString::fromWCharArray(value.data());
}

bool writeProfile(const QString& section, const QString& word, const QString& value)
{
    SQLSetConfigMode(ODBC_USER_DSN);
    const std::wstring text = wide(value);
    return SQLWritePrivateProfileStringW(wide(section).c_str(), wide(word).c_str(),
                                         value.isEmpty() ? nullptr : text.c_str(), kFile) != 0;
}

bool registerSource(const QString& name, const QString& driver)
{
    SQLSetConfigMode(ODBC_USER_DSN);
    return SQLWriteDSNToIniW(wide(name).c_str(), wide(driver).c_str()) != 0;
}

QString installerFault()
{
    std::array<wchar_t, 1024> words{};
    DWORD code = 0;
    WORD size = 0;
    const bool isTold =
        SQLInstallerErrorW(1, &code, words.data(), static_cast<WORD>(words.size() - 1), &size) ==
        SQL_SUCCESS;
    return isTold ? QString::fromWCharArray(words.data()) : QString();
}

QString usersFile()
{
    return {};
}

/// The registry is the user's own, and keeps what else stands there.
void prepareUsersFile() {}

} // namespace db
