#include "support/ManagerSources.h"

#include <windows.h>

#include <QStringList>
#include <odbcinst.h>

namespace test
{
namespace
{

constexpr const wchar_t* kFile = L"odbc.ini"; ///< the registry, under this name
const QString kList = QStringLiteral("ODBC Data Sources");

/// Null for the word takes the section away, null for the value the word.
void write(const QString& section, const QString& word, const QString& value)
{
    const std::wstring words = word.toStdWString();
    const std::wstring values = value.toStdWString();
    SQLSetConfigMode(ODBC_USER_DSN);
    SQLWritePrivateProfileStringW(section.toStdWString().c_str(),
                                  word.isNull() ? nullptr : words.c_str(),
                                  value.isNull() ? nullptr : values.c_str(), kFile);
}

} // namespace

void addToManager(const QString& name, const QString& lines)
{
    for (const QString& line : lines.split(u'\n', Qt::SkipEmptyParts)) {
        const QString word = line.section(u'=', 0, 0);
        const QString value = line.section(u'=', 1);
        write(name, word, value);
        if (word == QStringLiteral("Driver")) {
            write(kList, name, value);
        }
    }
}

void removeFromManager(const QString& name)
{
    write(kList, name, {});
    write(name, {}, {});
}

} // namespace test
