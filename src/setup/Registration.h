#pragma once

#include "setup/Recommendations.h"
#include "setup/Source.h"
#include "shell/Settings.h"

#include <QStringList>
#include <vector>

namespace setup
{

/// The name of the data source that Tempora opens unless its settings name another one.
inline constexpr QLatin1String kDataSource("MonKalo");

/// Where a source is written so that the program finds it.
enum class Route {
    DataSource, ///< a data source of the user, by the setting `Base`
    PhpFile,    ///< `app_data`/SaKalo.php beside the program, by the setting `Base_Sql`
};

/// A server is described in `app_data` where that can be written to and the driver is there under
/// the name that the program asks for; all else is a data source.
[[nodiscard]] Route routeOf(const Source& source, const QStringList& drivers,
                            const QString& applicationFolder);

/// What settings and data sources lead to now, as a line in French: "Fichier SQLite
/// /…/école.sqlite"; what they name where no more is known of it.
[[nodiscard]] QString presentSource(const shell::Settings& settings);

/// Writes data source or server's file, and the settings that lead to it. Errors: those of
/// db::writeDataSource, PathFileAccess.
void registerSource(const Source& source, Route route, const QString& driver,
                    const QString& applicationFolder, shell::Settings& settings);

/// Saves each of them as accepted or refused. A setting that was refused and stands at its default
/// is not written. Error: PathFileAccess.
void saveRecommendations(const std::vector<Recommendation>& recommendations,
                         shell::Settings& settings);

/// The lines of the server's file, as the program reads them. Error: InvalidProcedureCall for a
/// value of more than one line.
[[nodiscard]] QByteArray phpFileOf(const Server& server);

} // namespace setup
