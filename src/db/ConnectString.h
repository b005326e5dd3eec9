#pragma once

#include <QString>

namespace db
{

/// What the configuration file of the companion web application says about the MySQL server.
struct PhpConfiguration {
    QString host;
    QString login;
    QString password;
    QString base;
    QString port = QStringLiteral("3306");
};

/// Reads the file line by line (LF, CR LF or CR; UTF-8, with or without a mark, or Latin-1 when it
/// is not valid UTF-8). Only the position of a value in its line counts: the variable's name at the
/// start of the line, a fixed number of characters dropped there, the last two dropped at the end.
/// Spaces around "=" or a trailing comment therefore give a wrong value without any error, which
/// is wanted: the web application writes the file in exactly one form.
/// Errors: FileNotFound; InvalidProcedureCall for a line shorter than what is dropped from it.
[[nodiscard]] PhpConfiguration readPhpConfiguration(const QString& path);

/// The connection strings that the program builds once at start-up.
struct ConnectStrings {
    QString ConnectString; ///< opens the connection
    QString DsnString;     ///< "DSN=" and the trimmed base name, kept for both kinds
};

/// Where the file `baseName`.php is looked for, in a folder app_data.
struct ConfigurationFolders {
    QString application; ///< the program's own; its file counts where both have one
    QString system;      ///< the machine's, where programs are not written to; empty without one
};

/// Full path of the file that describes the server `baseName`: the program's own; the machine's
/// where that one alone is there. The name is taken as it stands, blanks included.
[[nodiscard]] QString configurationFile(const QString& baseName,
                                        const ConfigurationFolders& folders);

/// Access: the data source named `baseName`. MySQL: the server that its file describes.
/// Errors: those of `readPhpConfiguration`; where no folder has the file they name that of the
/// program's own.
[[nodiscard]] ConnectStrings BuildConnectString(const QString& baseName, bool useMySql,
                                                const ConfigurationFolders& folders);

} // namespace db
