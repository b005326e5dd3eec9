#include "support/MariaDbAccess.h"

#include "support/ChildProgram.h"
#include "support/OdbcConfiguration.h"

#include <QStringList>

namespace test
{

const QString MariaDbAccess::kAdministrator = QStringLiteral("administrator");

QByteArray MariaDbAccess::runScript(const QString& statements, const QString& database) const
{
    QStringList arguments = {QStringLiteral("--no-defaults"),
                             QStringLiteral("--host=127.0.0.1"),
                             QStringLiteral("--port=%1").arg(m_port),
                             QStringLiteral("--user=") + kAdministrator,
                             QStringLiteral("--default-character-set=utf8mb4"),
                             QStringLiteral("--batch"),
                             QStringLiteral("--skip-column-names")};
    if (!database.isEmpty()) {
        arguments << database;
    }
    return runProgram(findProgram(QStringLiteral("mariadb")), arguments, statements.toUtf8());
}

void MariaDbAccess::createAccount(const QString& user, const QString& password,
                                  const QString& grants) const
{
    QString script =
        QStringLiteral("CREATE OR REPLACE USER '%1'@'%' IDENTIFIED BY '%2';\n").arg(user, password);
    for (const QString& grant : grants.split(u';', Qt::SkipEmptyParts)) {
        script += QStringLiteral("GRANT %2 TO '%1'@'%';\n").arg(user, grant);
    }
    runScript(script);
}

QString MariaDbAccess::connectString(const QString& database, const QString& user,
                                     const QString& password) const
{
    static_cast<void>(OdbcConfiguration::instance()); // where the driver has its name
    return QStringLiteral("DRIVER={MySQL ODBC 3.51 Driver};SERVER=127.0.0.1;DATABASE=%1;USER=%2;"
                          "PASSWORD=%3;port=%4OPTION=35")
        .arg(database, user, password)
        .arg(m_port);
}

} // namespace test
