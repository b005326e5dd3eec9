#pragma once

#include "db/ConnectString.h"
#include "setup/Recommendations.h"
#include "setup/Source.h"
#include "shell/Settings.h"

#include <QStringList>
#include <vector>

namespace setup
{

/// The name of the data source that Tempora opens unless its settings name another one.
inline constexpr QLatin1String kDataSource("MonKalo");

/// The file that describes a server unless the settings name another one, without its ending.
inline constexpr QLatin1String kServersFile("SaKalo");

/// The driver that the program asks for by name to open the server of that file.
inline constexpr QLatin1String kServersDriver("MySQL ODBC 3.51 Driver");

/// Where a source is written so that the program finds it.
enum class Route {
    DataSource, ///< a data source of the user, by the setting `Base`
    PhpFile,    ///< `app_data`/SaKalo.php beside the program, by the setting `Base_Sql`
};

/// A server is described in `app_data` beside the program where that is the user's to write, the
/// driver is there under the name that the program asks for, and the program can pass on what is to
/// stand there. All else is a data source: so is a server for whoever administers a machine whose
/// program belongs to a package, as the file would be for that one account.
[[nodiscard]] Route routeOf(const Source& source, const QStringList& drivers,
                            const db::ConfigurationFolders& folders);

/// The driver, of those installed, that opens the source when it is written there; empty where none
/// does.
[[nodiscard]] QString driverOn(Route route, SourceKind kind, const QStringList& drivers);

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
