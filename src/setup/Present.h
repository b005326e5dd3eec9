#pragma once

#include "db/ConnectString.h"
#include "setup/Source.h"
#include "shell/Settings.h"

#include <optional>

namespace setup
{

/// What settings and data sources lead to now.
struct Present {
    QString words; ///< a line in French: "Fichier SQLite /…/école.sqlite"; empty: nothing is set up
    std::optional<Source> source; ///< where enough is known of it to be changed
};

/// Looks at the settings and at what they name, and opens nothing but the server's file.
[[nodiscard]] Present presentOf(const shell::Settings& settings,
                                const db::ConfigurationFolders& folders);

} // namespace setup
