#include "support/ChildProgram.h"
#include "support/MariaDbAccess.h"

#include <QStringList>

namespace test
{

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

} // namespace test
