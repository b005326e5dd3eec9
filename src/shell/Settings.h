#pragma once

#include <QString>
#include <memory>

class QSettings;

namespace shell
{

/// The per-user settings of application "Tempora", section "Settings". All values are texts.
class Settings
{
public:
    /// The store of the platform: `Tempora.ini` in the user's configuration folder, on Windows the
    /// registry path of the platform's own settings functions.
    [[nodiscard]] static Settings perUser();
    /// An INI file with a section [Settings], in place of the per-user store.
    [[nodiscard]] static Settings fromFile(const QString& path);
    ~Settings();
    Settings(Settings&&) noexcept;
    Settings& operator=(Settings&&) noexcept;

    [[nodiscard]] QString get(const QString& key, const QString& fallback) const;
    void save(const QString& key, const QString& value);

private:
    explicit Settings(std::unique_ptr<QSettings> store);
    std::unique_ptr<QSettings> m_store;
};

} // namespace shell
