#include "shell/Settings.h"

#include <QSettings>
#include <QStringList>

namespace shell
{
namespace
{

#ifdef Q_OS_WIN
std::unique_ptr<QSettings> openPerUser()
{
    // Where the platform's GetSetting and SaveSetting keep them: an existing installation keeps
    // its settings.
    return std::make_unique<QSettings>(
        QStringLiteral("HKEY_CURRENT_USER\\Software\\VB and VBA Program Settings\\Tempora"),
        QSettings::NativeFormat);
}
#else
std::unique_ptr<QSettings> openPerUser()
{
    return std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope,
                                       QStringLiteral("Tempora"));
}
#endif

QString path(const QString& key)
{
    return QStringLiteral("Settings/") + key;
}

} // namespace

Settings::Settings(std::unique_ptr<QSettings> store) : m_store(std::move(store)) {}
Settings::~Settings() = default;
Settings::Settings(Settings&&) noexcept = default;
Settings& Settings::operator=(Settings&&) noexcept = default;

Settings Settings::perUser()
{
    return Settings(openPerUser());
}

Settings Settings::fromFile(const QString& path)
{
    return Settings(std::make_unique<QSettings>(path, QSettings::IniFormat));
}

QString Settings::get(const QString& key, const QString& fallback) const
{
    // An unquoted comma in a hand-written file makes a list of the value.
    const QVariant value = m_store->value(path(key), fallback);
    return value.typeId() == QMetaType::QStringList
               ? value.toStringList().join(QStringLiteral(", "))
               : value.toString();
}

void Settings::save(const QString& key, const QString& value)
{
    m_store->setValue(path(key), value);
    m_store->sync();
}

} // namespace shell
