#pragma once

#include <QString>
#include <QStringList>

namespace test
{

/// This process's own ODBC configuration: the drivers under the names that the program uses, and
/// the data sources that tests add. The system's configuration is neither read nor changed.
class OdbcConfiguration
{
public:
    /// The one configuration of the process, in force from the first call on.
    [[nodiscard]] static OdbcConfiguration& instance();
    /// Takes away what the manager keeps elsewhere than in the process's own files.
    ~OdbcConfiguration();
    OdbcConfiguration(const OdbcConfiguration&) = delete;
    OdbcConfiguration& operator=(const OdbcConfiguration&) = delete;

    /// Adds a data source over an SQLite file. The name must be new in this process: the driver
    /// manager remembers what it has once read.
    void addSqliteSource(const QString& name, const QString& file);
    /// Adds a data source whose driver library does not exist.
    void addBrokenSource(const QString& name);

    /// Adds a data source as the lines say, "Driver=…" among them.
    void addSource(const QString& name, const QString& lines);

private:
    OdbcConfiguration();

    QString m_sources;
    QStringList m_names;
};

} // namespace test
