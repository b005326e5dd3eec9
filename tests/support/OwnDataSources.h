#pragma once

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

namespace test
{

/// Files of ODBC's manager that are a test's own while the object lives: two drivers and one data
/// source of the user, "Other". The machine's and those of other tests are out of the way.
class OwnDataSources
{
public:
    OwnDataSources();
    ~OwnDataSources();
    OwnDataSources(const OwnDataSources&) = delete;
    OwnDataSources& operator=(const OwnDataSources&) = delete;

    [[nodiscard]] QString path(const QString& name) const { return m_folder.filePath(name); }
    /// What the user's file holds when the object begins.
    [[nodiscard]] static QByteArray usersText();
    /// Writes what is installed: each driver's name with the library at that path.
    void install(const QString& driver, const QString& library) const;
    void write(const QString& name, const QByteArray& bytes) const;
    [[nodiscard]] QByteArray text(const QString& name) const;

private:
    QByteArray m_system = qgetenv("ODBCSYSINI");
    QByteArray m_users = qgetenv("ODBCINI");
    QTemporaryDir m_folder;
};

} // namespace test
