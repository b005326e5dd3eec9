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
    /// Errors: PathFileAccess for a store that is there and cannot be read, InvalidFileFormat for a
    /// file with a line that is no setting: what can be made of it would pass for the user's wish.
    [[nodiscard]] static Settings perUser();
    /// An INI file with a section [Settings], in place of the per-user store. Errors: the same.
    [[nodiscard]] static Settings fromFile(const QString& path);
    ~Settings();
    Settings(Settings&&) noexcept;
    Settings& operator=(Settings&&) noexcept;

    /// The same store, opened anew: for a second program beside this one. Errors: the same.
    [[nodiscard]] Settings again() const;

    /// Which part of the store.
    enum class Section {
        Settings, ///< [Settings]: what the program is told
        Window,   ///< [Window]: where its window lay
    };

    [[nodiscard]] QString get(const QString& key, const QString& fallback,
                              Section section = Section::Settings) const;
    /// A file that is not there yet is made for its owner alone; another one keeps its rights.
    /// Error: PathFileAccess when the store cannot be written.
    void save(const QString& key, const QString& value, Section section = Section::Settings);

private:
    explicit Settings(std::unique_ptr<QSettings> store);
    void check(const QString& activity) const;

    std::unique_ptr<QSettings> m_store;
};

} // namespace shell
