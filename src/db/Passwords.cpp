#include "db/Passwords.h"

#include <QRegularExpression>
#include <QUrl>
#include <algorithm>

namespace db
{
namespace
{

constexpr auto kAnyCase =
    QRegularExpression::CaseInsensitiveOption | QRegularExpression::DotMatchesEverythingOption;

/// What may be the password in the text that is put together of a PHP file's values, or a part of
/// it. Another value may hold the words between which it stands, and so may the password: then no
/// one can tell where it begins and ends, and all between any two of them is taken.
QStringList betweenWordsOfPhpFile(const QString& connectString)
{
    static const QRegularExpression form(
        QStringLiteral("^DRIVER=\\{MySQL ODBC 3\\.51 Driver\\};SERVER="));
    static const QRegularExpression words(QStringLiteral(";PASSWORD=|;port="));
    constexpr qsizetype around = 2; // the text before the first word and behind the last one
    if (!form.match(connectString).hasMatch()) {
        return {};
    }
    QStringList pieces = connectString.split(words);
    if (pieces.size() <= around) {
        return {};
    }
    pieces = pieces.mid(1, pieces.size() - around);
    if (pieces.size() > 1) {
        pieces << QStringLiteral(";PASSWORD=") << QStringLiteral(";port=");
    }
    return pieces;
}

/// The values that stand behind the words for a password, as far as they may go.
QStringList writtenIn(const QString& connectString)
{
    // The one form in which the PHP file's values are put together: what is a value is known.
    static const QRegularExpression ofPhpFile(
        QStringLiteral("^DRIVER=\\{MySQL ODBC 3\\.51 Driver\\};SERVER=.*?;PASSWORD=(.*)"
                       ";port=.*OPTION=\\d+$"),
        kAnyCase);
    static const QRegularExpression anyForm(
        QStringLiteral(
            "(?:^|;)\\s*\\w*(?:PASSWORD|PASSPHRASE|PWD)\\w*\\s*="
            "(\\s*\\{(?:[^}]++|\\}\\})*+\\}|.*?)" // takes nothing back, however long it is
            "(?=;\\s*(?:DRIVER|DSN|FILEDSN|SERVER|HOST|DATABASE|DB|USER|UID|PORT|SOCKET|"
            "OPTIONS?|CHARSET|\\w*TIMEOUT|(?:SSL|TLS)\\w*|\\w*PASSWORD\\w*|PWD)\\s*=|;?$)"),
        kAnyCase);
    QStringList values = betweenWordsOfPhpFile(connectString);
    for (const QRegularExpression& form : {ofPhpFile, anyForm}) {
        auto matches = form.globalMatch(connectString);
        while (matches.hasNext()) {
            values << matches.next().captured(1);
        }
    }
    return values;
}

/// The text without blanks and quotes around it.
QString bare(QString text)
{
    static const QRegularExpression around(QStringLiteral("^[\\s\"']+|[\\s\"']+$"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    return text.remove(around);
}

/// What a driver may take for a text of its own: it ends values at semicolons and braces, and what
/// comes behind them may be a word with a value.
QStringList partsOf(const QString& value)
{
    static const QRegularExpression ends(QStringLiteral("[;{}]"));
    QStringList parts;
    for (const QString& part : value.split(ends)) {
        parts << part;
        if (value.contains(u';')) {
            parts << part.split(u'=');
        }
    }
    return parts;
}

/// How a password may look in a text.
QStringList looksOf(const QString& password)
{
    QString ascii = password;
    std::replace_if(
        ascii.begin(), ascii.end(), [](QChar c) { return c.unicode() > 0x7f; }, QChar(u'?'));
    return {password, QString::fromLatin1(QUrl::toPercentEncoding(password)),
            QString::fromLatin1(password.toUtf8()), ascii};
}

/// The text without what a driver puts into quoted texts.
QString unescaped(QString text)
{
    static const QRegularExpression marks(QStringLiteral("[\"'`\\\\]"));
    return text.remove(marks);
}

bool shows(const QString& text, const QStringList& passwords)
{
    const auto holds = [](const QString& where, const QString& what) {
        return !what.isEmpty() && where.contains(what, Qt::CaseInsensitive);
    };
    const QString plain = unescaped(text);
    return std::any_of(passwords.begin(), passwords.end(), [&](const QString& password) {
        const QStringList looks = looksOf(password);
        return holds(plain, unescaped(password)) ||
               std::any_of(looks.begin(), looks.end(),
                           [&](const QString& look) { return holds(text, look); });
    });
}

} // namespace

QStringList passwordsIn(const QString& connectString)
{
    QStringList passwords;
    for (const QString& value : writtenIn(connectString)) {
        QString inner = value.trimmed();
        if (inner.startsWith(u'{') && inner.endsWith(u'}')) {
            inner =
                inner.mid(1, inner.size() - 2).replace(QStringLiteral("}}"), QStringLiteral("}"));
        }
        for (const QString& password : QStringList{value, inner} + partsOf(value)) {
            passwords << password.trimmed() << bare(password);
        }
    }
    passwords.removeAll(QString());
    passwords.removeDuplicates();
    std::stable_sort(
        passwords.begin(), passwords.end(),
        [](const QString& left, const QString& right) { return left.size() > right.size(); });
    return passwords;
}

QString withoutPasswords(const Diagnostics& diagnostics, const QStringList& passwords)
{
    if (!shows(diagnostics.text, passwords)) {
        return diagnostics.text;
    }
    const QString sentence = QStringLiteral("Le texte du pilote n’est pas montré : il pourrait "
                                            "livrer le mot de passe de la base.");
    const QString state = diagnostics.state;
    const QString code = QString::number(diagnostics.nativeCode);
    return shows(state + u' ' + code, passwords)
               ? sentence
               : sentence + QStringLiteral("\nSQLSTATE %1, code %2").arg(state, code);
}

} // namespace db
