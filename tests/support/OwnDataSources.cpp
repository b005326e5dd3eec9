#include "support/OwnDataSources.h"

#include <QFile>
#include <stdexcept>

namespace test
{
namespace
{

void restore(const char* variable, const QByteArray& value)
{
    if (value.isNull()) {
        qunsetenv(variable);
    } else {
        qputenv(variable, value);
    }
}

} // namespace

OwnDataSources::OwnDataSources()
{
    install(QStringLiteral("SQLite3"), QStringLiteral("libsqlite3odbc.so"));
    install(QStringLiteral("MariaDB Unicode"), QStringLiteral("libmaodbc.so"));
    write(QStringLiteral("odbc.ini"), usersText());
    qputenv("ODBCSYSINI", m_folder.path().toUtf8());
    qputenv("ODBCINI", path(QStringLiteral("odbc.ini")).toUtf8());
}

OwnDataSources::~OwnDataSources()
{
    restore("ODBCSYSINI", m_system);
    restore("ODBCINI", m_users);
}

QByteArray OwnDataSources::usersText()
{
    return "# mine\n[Other]\nDriver=X\nServer=far\n";
}

void OwnDataSources::install(const QString& driver, const QString& library) const
{
    write(QStringLiteral("odbcinst.ini"),
          text(QStringLiteral("odbcinst.ini")) +
              QStringLiteral("[%1]\nDriver=%2\n\n").arg(driver, library).toUtf8());
}

void OwnDataSources::write(const QString& name, const QByteArray& bytes) const
{
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size()) {
        throw std::runtime_error("cannot write " + file.fileName().toStdString());
    }
}

QByteArray OwnDataSources::text(const QString& name) const
{
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace test
