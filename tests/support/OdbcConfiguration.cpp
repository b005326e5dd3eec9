#include "support/OdbcConfiguration.h"

#include "support/ManagerSources.h"
#include "support/TestFolder.h"

#include <QFile>

namespace test
{

OdbcConfiguration& OdbcConfiguration::instance()
{
    static OdbcConfiguration configuration;
    return configuration;
}

#ifdef _WIN32
/// Under Wine the machine's own manager is asked, with the environment in which the program began:
/// whoever runs the tests has made the folder, for this process alone.
OdbcConfiguration::OdbcConfiguration()
{
    writeFile(QFile::decodeName(qgetenv("ODBCINI")), QString());
}
#else
OdbcConfiguration::OdbcConfiguration()
{
    const QString folder = processFolder() + QStringLiteral("/odbc");
    writeFile(folder + QStringLiteral("/odbcinst.ini"),
              QStringLiteral("[SQLite3]\nDriver=libsqlite3odbc.so\n\n"
                             "[MySQL ODBC 3.51 Driver]\nDriver=libmaodbc.so\n"));
    const QString sourcesFile = folder + QStringLiteral("/odbc.ini");
    writeFile(sourcesFile, QString());
    qputenv("ODBCSYSINI", QFile::encodeName(folder));
    qputenv("ODBCINI", QFile::encodeName(sourcesFile));
}
#endif

OdbcConfiguration::~OdbcConfiguration()
{
    for (const QString& name : m_names) {
        removeFromManager(name);
    }
}

void OdbcConfiguration::addSqliteSource(const QString& name, const QString& file)
{
    addSource(name, QStringLiteral("Driver=SQLite3\nDatabase=%1\n").arg(file));
}

void OdbcConfiguration::addBrokenSource(const QString& name)
{
    addSource(name, QStringLiteral("Driver=/nowhere/libmissing.so\n"));
}

void OdbcConfiguration::addSource(const QString& name, const QString& lines)
{
    m_names += name;
    addToManager(name, lines);
    m_sources += QStringLiteral("[%1]\n%2\n").arg(name, lines);
    writeFile(QFile::decodeName(qgetenv("ODBCINI")), m_sources);
}

} // namespace test
