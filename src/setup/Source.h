#pragma once

#include <QString>
#include <QStringList>

namespace setup
{

/// Where a school's timetable may be.
enum class SourceKind {
    Demo,       ///< a faculty that the program makes up
    SqliteFile, ///< a file that is there
    Server,     ///< MariaDB or MySQL
    Access,     ///< an Access file, on Windows
};

/// A MariaDB or MySQL server and the account on it.
struct Server {
    QString host;
    QString port = QStringLiteral("3306");
    QString login;
    QString password;
    QString base;

    friend bool operator==(const Server&, const Server&) = default;
};

/// What somebody says of their timetable.
struct Source {
    SourceKind kind = SourceKind::Demo;
    QString file; ///< full path; of no server
    Server server;
};

/// The driver, of those installed, that opens such a source; empty where none does.
[[nodiscard]] QString driverFor(SourceKind kind, const QStringList& drivers);

/// What a driver of that kind is called, in a French sentence after "le pilote ODBC": "de SQLite".
[[nodiscard]] QString ofDriver(SourceKind kind);

/// The connection string that opens the source by this driver, without a data source.
[[nodiscard]] QString connectStringOf(const Source& source, const QString& driver);

/// What is missing before the source can be tried, as a sentence in French; empty: nothing is.
/// `driver` as driverFor has told it.
[[nodiscard]] QString missingIn(const Source& source, const QString& driver);

} // namespace setup
