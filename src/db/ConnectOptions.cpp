#include "db/ConnectOptions.h"

#include <QRegularExpression>

namespace db
{

namespace
{

QString valueOf(const QString& word, const QString& connectString)
{
    const QRegularExpression form(QStringLiteral("(?:^|;)\\s*") + word +
                                      QStringLiteral("\\s*=\\s*(?:\\{([^}]*)\\}?|([^;]*))"),
                                  QRegularExpression::CaseInsensitiveOption);
    const QRegularExpressionMatch match = form.match(connectString);
    return (match.captured(1) + match.captured(2)).trimmed();
}

} // namespace

QString driverIn(const QString& connectString)
{
    return valueOf(QStringLiteral("DRIVER"), connectString);
}

QString dataSourceIn(const QString& connectString)
{
    return valueOf(QStringLiteral("DSN"), connectString);
}

QString withLimits(const QString& connectString, const QString& driver)
{
    const auto isNamed = [&driver](const char* word) {
        return driver.contains(QLatin1String(word), Qt::CaseInsensitive);
    };
    if (isNamed("sqlite")) {
        return withFileLimits(connectString);
    }
    return isNamed("mysql") || isNamed("mariadb") || isNamed("maodbc")
               ? connectString +
                     QStringLiteral(";CONN_TIMEOUT=15;READ_TIMEOUT=%1;WRITE_TIMEOUT=%1")
                         .arg(
                             std::chrono::duration_cast<std::chrono::seconds>(kAnswerLimit).count())
               : connectString;
}

QString withFileLimits(const QString& connectString)
{
    // The driver waits twice as many milliseconds as it is told: once in SQLite, once by itself.
    return connectString + QStringLiteral(";Timeout=1000;NoCreat=1");
}

} // namespace db
