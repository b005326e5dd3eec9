#include "db/ConnectOptions.h"

#include <QRegularExpression>
#include <algorithm>

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

QStringList passwordsIn(const QString& connectString)
{
    // A password may itself hold a semicolon, which the driver takes for the end of the value:
    // neither what the driver saw nor what the user wrote may show.
    static const QRegularExpression form(
        QStringLiteral("(?:^|;)\\s*(?:PASSWORD|PWD)\\s*=\\s*"
                       "(?=(\\{[^}]*\\}|[^;]*))(.*?)(?=;\\s*[A-Za-z][A-Za-z0-9_ ]*=|;?$)"),
        QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption);
    QStringList passwords;
    auto matches = form.globalMatch(connectString);
    while (matches.hasNext()) {
        const QRegularExpressionMatch match = matches.next();
        for (const QString& password : {match.captured(1), match.captured(2)}) {
            passwords << password;
            if (password.startsWith(u'{') && password.endsWith(u'}')) {
                passwords << password.mid(1, password.size() - 2);
            }
        }
    }
    passwords.removeAll(QString());
    passwords.removeDuplicates();
    std::sort(passwords.begin(), passwords.end(),
              [](const QString& left, const QString& right) { return left.size() > right.size(); });
    return passwords;
}

QString withoutPasswords(QString text, const QStringList& passwords)
{
    for (const QString& password : passwords) {
        text.replace(password, QStringLiteral("***"));
    }
    return text;
}

} // namespace db
