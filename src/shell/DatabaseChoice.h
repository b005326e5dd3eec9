#pragma once

#include "db/ConnectString.h"
#include "shell/Settings.h"

#include <QString>

namespace shell
{

/// Which database the settings choose.
struct DatabaseChoice {
    /// Access: the data source. MySQL: the file in `app_data` that describes the server.
    QString BaseName;
    /// MySQL: `BaseName`. Access: the database's path. Kept for that shape of the state: the data
    /// source alone decides which file is opened.
    QString DbPath;
    db::ConnectStrings strings;

    /// What a message calls the database by: `BaseName` without what somebody may have written
    /// behind it for the driver, such as a password.
    [[nodiscard]] QString nameInMessages() const;
};

/// Reads the settings that choose a database of that kind. The folders hold `app_data`.
/// Errors: those of db::BuildConnectString.
[[nodiscard]] DatabaseChoice chooseDatabase(const Settings& settings, bool useMySql,
                                            const db::ConfigurationFolders& folders);

} // namespace shell
