#include "support/MariaDbAccess.h"

#include "support/OdbcConfiguration.h"

#include <QStringList>

namespace test
{

const QString MariaDbAccess::kAdministrator = QStringLiteral("administrator");

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
