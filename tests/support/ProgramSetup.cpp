#include "support/ProgramSetup.h"

#include "support/TestFolder.h"

#include <QFile>
#include <QStringList>

namespace test
{

ProgramSetup::ProgramSetup(const TestDatabase& database, Rights rights)
{
    static int counter = 0;
    m_folder = processFolder() + QStringLiteral("/program%1").arg(++counter);
    database.writePhpFile(m_folder, rights);
    if (database.usesMySql()) {
        m_settings["Mysql"] = "True";
        m_settings["Base_Sql"] = database.baseName();
    } else {
        m_settings["Base"] = database.baseName();
    }
    write();
}

void ProgramSetup::set(const QString& key, const QString& value)
{
    m_settings[key] = value;
    write();
}

void ProgramSetup::unset(const QString& key)
{
    m_settings.remove(key);
    write();
}

void ProgramSetup::write() const
{
    QString text = "[Settings]\n";
    for (auto setting = m_settings.begin(); setting != m_settings.end(); ++setting) {
        text += setting.key() + u'=' + setting.value() + u'\n';
    }
    writeFile(settingsFile(), text);
}

QString ProgramSetup::saved(const QString& key) const
{
    for (const QString& line : settingsText().split(u'\n')) {
        if (line.startsWith(key + u'=')) {
            return line.mid(key.size() + 1);
        }
    }
    return "(none)";
}

QString ProgramSetup::settingsText() const
{
    return fileText(settingsFile());
}

QString fileText(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? QString::fromUtf8(file.readAll()) : QString();
}

} // namespace test
