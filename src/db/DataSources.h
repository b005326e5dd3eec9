#pragma once

#include <QString>
#include <QStringList>
#include <utility>
#include <vector>

/// The drivers that ODBC has on this machine, and the user's data sources.
namespace db
{

/// A data source: what opens a database by its name alone.
struct DataSource {
    QString name;
    QString driver; ///< by the name that it is installed under
    /// The driver's own words and their values, such as the file ("Database") or the server. One
    /// without a value is taken away.
    std::vector<std::pair<QString, QString>> words;
};

/// The names of the installed drivers, in the manager's order; none where it knows of none.
[[nodiscard]] QStringList installedDrivers();

/// A word's value in the data source of that name; empty where there is no such source or word.
[[nodiscard]] QString wordOf(const QString& dataSource, const QString& word);

/// Writes a data source of the user alone; one of that name gives way, others stay. What was there
/// before the first time is left as a copy: the file with all of them, as the manager keeps no
/// remarks in it; on Windows the data source of that name, as another one. Error: PathFileAccess
/// with the manager's words; InvalidProcedureCall for a value of more than one line.
void writeDataSource(const DataSource& source);

} // namespace db
