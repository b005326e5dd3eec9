// What a connection is made from: the PHP file and connection strings; and what a driver may say
// about it without a password getting into a message.
#include "db/ConnectOptions.h"
#include "db/ConnectString.h"
#include "db/Passwords.h"
#include "fuzz/Input.h"
#include "fuzz/MemoryFile.h"
#include "fuzz/Require.h"
#include "fuzz/Texts.h"
#include "runtime/RunTimeError.h"

#include <QDir>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <algorithm>

using fuzz::require;

namespace
{

/// A folder with an app_data/fuzz.php, which is a link to a file in memory.
class Application
{
public:
    Application()
    {
        require(
            QDir(m_folder.path()).mkdir(QStringLiteral("app_data")) &&
                QFile::link(m_file.path(), m_folder.filePath(QStringLiteral("app_data/fuzz.php"))),
            "there is a folder");
    }

    void write(const QByteArray& php) { m_file.write(php); }
    /// Nothing where the file cannot be read.
    [[nodiscard]] QString connectString() const
    {
        QString text;
        runtime::skipOnError([&] {
            text = db::BuildConnectString(QStringLiteral("fuzz"), true, {m_folder.path(), {}})
                       .ConnectString;
        });
        return text;
    }
    [[nodiscard]] db::PhpConfiguration configuration() const
    {
        return db::readPhpConfiguration(m_file.path());
    }

private:
    fuzz::MemoryFile m_file;
    QTemporaryDir m_folder;
};

/// What a line of the PHP file can hold.
QString valueFrom(fuzz::Input& input)
{
    static const QRegularExpression lineEnds(QStringLiteral("[\r\n]"));
    return fuzz::throughUtf8(input.text().remove(lineEnds));
}

QByteArray phpOf(const db::PhpConfiguration& php)
{
    const QString text = QStringLiteral("<?php\n$host=\"") + php.host +
                         QStringLiteral("\";\r\n$login=\"") + php.login +
                         QStringLiteral("\";\r$mot_de_passe=\"") + php.password +
                         QStringLiteral("\";\n$Base=\"") + php.base +
                         QStringLiteral("\";\n$port=\"") + php.port + QStringLiteral("\";\n?>");
    return text.toUtf8();
}

/// The text that is shown of a driver's, which holds `secret`.
void checkHidden(const QString& secret, const QString& text, int code, const QStringList& passwords)
{
    const QString state = QStringLiteral("28000");
    const QString shown = db::withoutPasswords({state, code, text}, passwords);
    require(shown != text && shown.startsWith(u"Le texte du pilote"),
            "a text with a password is left out", secret, text);
    const QString codes = shown.section(u'\n', 1)
                              .remove(QStringLiteral("SQLSTATE "))
                              .remove(QStringLiteral(", code"));
    require(!codes.contains(secret, Qt::CaseInsensitive), "no code is a password", secret, codes);
}

/// No part of the password that a driver may take for a word stands in what is shown.
void checkPasswordIsHidden(const QString& password, const QString& connectString,
                           fuzz::Input& input)
{
    static const QRegularExpression ends(QStringLiteral("[;{}]"));
    const QStringList passwords = db::passwordsIn(connectString);
    const QString before = input.text();
    const QString behind = input.text();
    const int code = input.number(0, 99999);
    constexpr qsizetype mostParts = 4; // each takes its time
    QStringList secrets = password.split(ends).mid(0, mostParts);
    secrets << password;
    for (const QString& part : secrets) {
        const QString secret = part.trimmed();
        if (!secret.isEmpty()) {
            checkHidden(secret, before + secret + behind, code, passwords);
            QString inCapitals = secret; // ASCII's, for "ß" has none
            std::transform(secret.begin(), secret.end(), inCapitals.begin(), [](QChar character) {
                return character.unicode() < 0x80 ? character.toUpper() : character;
            });
            checkHidden(secret, before + inCapitals + behind, code, passwords);
        }
    }
}

void checkPasswords(const QStringList& passwords, const QString& connectString)
{
    for (const QString& password : passwords) {
        require(!password.trimmed().isEmpty(), "no password is blank", connectString);
        require(password.size() <= connectString.size(), "a password is part of the string");
    }
    require(std::is_sorted(passwords.begin(), passwords.end(),
                           [](const QString& left, const QString& right) {
                               return left.size() > right.size();
                           }),
            "passwords come by their length", connectString);
}

void checkAnyString(const QString& connectString)
{
    checkPasswords(db::passwordsIn(connectString), connectString);
    const QString driver = db::driverIn(connectString);
    const QString source = db::dataSourceIn(connectString);
    require(connectString.contains(driver), "the driver's name stands there", connectString);
    require(connectString.contains(source), "the data source's name stands there", connectString);
    const QString limited = db::withLimits(connectString, driver);
    require(limited.startsWith(connectString), "limits are added at the end", limited);
    // A brace that is never closed takes in all that follows: such a string opens nothing.
    require(db::dataSourceIn(limited) == source || source.isEmpty() || connectString.contains(u'{'),
            "limits change no data source", limited, source);
}

/// What is written in the one form of the web application is read as it is.
void checkValues(Application& application, fuzz::Input& input)
{
    db::PhpConfiguration php;
    for (QString* value : {&php.host, &php.login, &php.password, &php.base, &php.port}) {
        *value = valueFrom(input);
    }
    application.write(phpOf(php));
    const db::PhpConfiguration read = application.configuration();
    require(read.host == php.host && read.login == php.login && read.password == php.password &&
                read.base == php.base && read.port == php.port,
            "the values of the PHP file are read", QString::fromUtf8(phpOf(php)));
    const QString connectString = application.connectString();
    checkAnyString(connectString);
    checkPasswordIsHidden(php.password, connectString, input);
}

/// A password between braces, which are doubled within, in a string of the settings.
void checkBraces(fuzz::Input& input)
{
    const QString password = fuzz::throughUtf8(input.text());
    const QString connectString = QStringLiteral("DSN=Kalo;PWD={") +
                                  QString(password).replace(u'}', QStringLiteral("}}")) +
                                  QStringLiteral("};UID=anne");
    require(password.trimmed().isEmpty() ||
                db::passwordsIn(connectString).contains(password.trimmed()),
            "a password between braces is found whole", connectString);
    checkPasswordIsHidden(password, connectString, input);
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size)
{
    static Application application;
    fuzz::Input input(data, size);
    const QByteArray kind = input.bytes();
    if (kind == "values") {
        checkValues(application, input);
    } else if (kind == "braces") {
        checkBraces(input);
    } else if (kind == "string") {
        checkAnyString(input.text());
    } else { // a PHP file as it comes
        application.write(kind);
        checkAnyString(application.connectString());
    }
    return 0;
}
