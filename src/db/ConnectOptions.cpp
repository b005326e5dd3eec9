#include "db/ConnectOptions.h"

#include <QRegularExpression>
#include <algorithm>

namespace db
{

QString withServerTimeouts(const QString& connectString)
{
    static const QRegularExpression mySql(
        QStringLiteral("(?:^|;)\\s*DRIVER\\s*=[^;]*(?:MySQL|MariaDB)"),
        QRegularExpression::CaseInsensitiveOption);
    return connectString.contains(mySql)
               ? connectString +
                     QStringLiteral(";CONN_TIMEOUT=15;READ_TIMEOUT=%1;WRITE_TIMEOUT=%1")
                         .arg(
                             std::chrono::duration_cast<std::chrono::seconds>(kAnswerLimit).count())
               : connectString;
}

QString withLockTimeout(const QString& connectString)
{
    // The driver waits twice as many milliseconds as it is told: once in SQLite, once by itself.
    return connectString + QStringLiteral(";Timeout=1000");
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
