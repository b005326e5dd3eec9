#pragma once

#include "support/TestDatabase.h"

#include <QMap>
#include <QString>

namespace test
{

/// What a program of a test finds around it: an application folder of its own and a settings file
/// that names a test's database. Nothing of the user's is read or written.
class ProgramSetup
{
public:
    /// On a server the program has an account with these rights.
    explicit ProgramSetup(const TestDatabase& database, Rights rights = Rights::Marking);

    /// Holds `app_data` and, when a test runs the executable, a copy of it.
    [[nodiscard]] const QString& applicationFolder() const { return m_folder; }
    [[nodiscard]] QString settingsFile() const { return m_folder + "/reglages.ini"; }
    /// A path in the application folder.
    [[nodiscard]] QString path(const QString& name) const { return m_folder + u'/' + name; }

    /// Writes a setting; an empty file has only those that name the database.
    void set(const QString& key, const QString& value);
    void unset(const QString& key);
    /// The value as the file has it now, "(none)" when it has none.
    [[nodiscard]] QString saved(const QString& key) const;
    /// The whole file.
    [[nodiscard]] QString settingsText() const;

private:
    void write() const;

    QString m_folder;
    QMap<QString, QString> m_settings;
};

/// The text of a file as UTF-8; empty when there is no such file.
[[nodiscard]] QString fileText(const QString& path);

} // namespace test
