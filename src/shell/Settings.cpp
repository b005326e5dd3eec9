#include "shell/Settings.h"

#include "runtime/RunTimeError.h"
#include "shell/UserStore.h"

#include <QDir>
#include <QFileInfo>
#include <QSettings>
#include <QStandardPaths>
#include <QStringList>
#include <QTemporaryFile>

namespace shell
{
namespace
{

QString path(Settings::Section section, const QString& key)
{
    return (section == Settings::Section::Window ? QStringLiteral("Window/")
                                                 : QStringLiteral("Settings/")) +
           key;
}

/// Makes the file where there is none, for its owner alone: the store would make one that all may
/// read, and a connection string, with its password, may come to stand in it. The store keeps the
/// rights of a file that it finds. What fails here fails again when the store saves, and is told.
void makeForOwnerAlone(const QString& path)
{
    const QFileInfo there(path);
    if (there.exists() || there.isSymLink() || !QDir().mkpath(there.path())) {
        return;
    }
    QTemporaryFile file(path + QStringLiteral(".XXXXXX")); // always its owner's alone
    file.setAutoRemove(!(file.open() && file.rename(path)));
}

/// The files that the store is made of, for a message.
QString filesOf(const QSettings& store)
{
    // A store of the user falls back to one that all users of a machine share.
    const QStringList found =
        store.organizationName().isEmpty()
            ? QStringList()
            : QStandardPaths::locateAll(QStandardPaths::GenericConfigLocation,
                                        QFileInfo(store.fileName()).fileName());
    return (found.isEmpty() ? QStringList(store.fileName()) : found).join(QStringLiteral(" », « "));
}

} // namespace

Settings::Settings(std::unique_ptr<QSettings> store) : m_store(std::move(store))
{
    static_cast<void>(m_store->allKeys()); // else a section is only read when it is asked for
    check(QStringLiteral("Lecture des paramètres"));
}

Settings::~Settings() = default;
Settings::Settings(Settings&&) noexcept = default;
Settings& Settings::operator=(Settings&&) noexcept = default;

Settings Settings::perUser()
{
    return Settings(openUserStore());
}

Settings Settings::fromFile(const QString& path)
{
    return Settings(std::make_unique<QSettings>(path, QSettings::IniFormat));
}

Settings Settings::again() const
{
    return m_store->organizationName().isEmpty()
               ? Settings(std::make_unique<QSettings>(m_store->fileName(), m_store->format()))
               : perUser();
}

QString Settings::get(const QString& key, const QString& fallback, Section section) const
{
    // An unquoted comma in a hand-written file makes a list of the value.
    const QVariant value = m_store->value(path(section, key), fallback);
    return value.typeId() == QMetaType::QStringList
               ? value.toStringList().join(QStringLiteral(", "))
               : value.toString();
}

void Settings::save(const QString& key, const QString& value, Section section)
{
    if (m_store->format() == QSettings::IniFormat) {
        makeForOwnerAlone(m_store->fileName());
    }
    m_store->setValue(path(section, key), value);
    m_store->sync();
    check(QStringLiteral("Enregistrement des paramètres"));
}

void Settings::check(const QString& activity) const
{
    if (m_store->status() == QSettings::NoError) {
        return;
    }
    runtime::during(activity + QStringLiteral(" (« %1 »)").arg(filesOf(*m_store)), [this] {
        throw runtime::RunTimeError(m_store->status() == QSettings::FormatError
                                        ? runtime::ErrorNumber::InvalidFileFormat
                                        : runtime::ErrorNumber::PathFileAccess);
    });
}

} // namespace shell
