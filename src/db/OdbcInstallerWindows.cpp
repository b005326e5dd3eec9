#include "db/OdbcInstaller.h"

#include "db/OdbcApi.h"

#include <QSettings>
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

/// In the registry, which is the user's own and keeps what else stands there. A copy that cannot be
/// made keeps nobody from a new source.
void keepUsersSource(const QString& name)
{
    QSettings sources(QStringLiteral("HKEY_CURRENT_USER\\Software\\ODBC\\ODBC.INI"),
                      QSettings::NativeFormat);
    const QString copy = name + QString(kCopyEnding);
    const QStringList present = sources.childGroups();
    if (!present.contains(name, Qt::CaseInsensitive) ||
        present.contains(copy, Qt::CaseInsensitive)) {
        return;
    }
    sources.beginGroup(name);
    const QStringList words = sources.childKeys();
    sources.endGroup();
    for (const QString& word : words) {
        sources.setValue(copy + u'/' + word, sources.value(name + u'/' + word));
    }
    const QString list = QStringLiteral("ODBC Data Sources/");
    sources.setValue(list + copy, sources.value(list + name));
}

} // namespace db
