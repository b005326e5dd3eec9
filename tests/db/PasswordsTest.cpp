#include "db/Passwords.h"

#include "support/RuntimeMatchers.h"

using namespace db;

namespace
{

QStringList passwords(const char* connectString)
{
    return passwordsIn(QString::fromUtf8(connectString));
}

/// The connection string of a PHP file with this password.
QString ofPhpFile(const QString& password)
{
    return QStringLiteral("DRIVER={MySQL ODBC 3.51 Driver};SERVER=db;DATABASE=b;USER=u;PASSWORD=") +
           password + QStringLiteral(";port=3306OPTION=35");
}

const QString kHidden = QStringLiteral("Le texte du pilote n’est pas montré : il pourrait livrer "
                                       "le mot de passe de la base.");
const QString kDenied = QStringLiteral("Access denied for user 'anne'@'localhost' (using password: "
                                       "YES)");

/// What is shown of a driver's text.
QString shown(const QString& text, const QString& password)
{
    return withoutPasswords({QStringLiteral("28000"), 1045, text},
                            passwordsIn(ofPhpFile(password)));
}

} // namespace

TEST(Passwords, areFoundUnderAllTheirNamesInAnyCase)
{
    const QStringList secret({QStringLiteral("secret")});
    EXPECT_EQ(passwords("DSN=x;PASSWORD=secret;port=3"), secret);
    EXPECT_EQ(passwords("Pwd=secret"), secret);
    EXPECT_EQ(passwords("DSN=x; password = secret;"), secret);
    EXPECT_EQ(passwords("DSN=x;PASSWORD2=secret;TLSKEYPWD=secret"), secret);
    EXPECT_EQ(passwords("PWD=secret;SERVER=db;USER=u;TIMEOUT=3;SSLVERIFY=1"), secret);
}

TEST(Passwords, areFoundWholeAndAsTheDriverReadsThem)
{
    EXPECT_EQ(passwords("USER=u;PASSWORD=a;bcd;port=3306OPTION=35"),
              QStringList({QStringLiteral("a;bcd"), QStringLiteral("bcd"), QStringLiteral("a")}));
    EXPECT_EQ(passwords("PWD={a;b};port=1"),
              QStringList({QStringLiteral("{a;b}"), QStringLiteral("a;b"), QStringLiteral("a"),
                           QStringLiteral("b")}));
    EXPECT_TRUE(passwords("PWD={a}};SERVER=b};port=1").contains(QStringLiteral("a};SERVER=b")));
    EXPECT_EQ(passwords("PWD=aGk=;port=1"), QStringList({QStringLiteral("aGk=")}));
    EXPECT_EQ(passwords("PWD=\"ab\""),
              QStringList({QStringLiteral("\"ab\""), QStringLiteral("ab")}));
}

TEST(Passwords, areFoundInPartsThatLookLikeWordsOfTheirOwn)
{
    EXPECT_EQ(passwords("PWD=ab;x=yz;SERVER=db"),
              QStringList({QStringLiteral("ab;x=yz"), QStringLiteral("x=yz"), QStringLiteral("ab"),
                           QStringLiteral("yz"), QStringLiteral("x")}));
    const QStringList ofFile = passwordsIn(ofPhpFile(QStringLiteral("ab;SERVER=evil;port=1")));
    for (const char* part : {"ab;SERVER=evil;port=1", "ab", "evil"}) {
        EXPECT_TRUE(ofFile.contains(QString::fromUtf8(part))) << part;
    }
    EXPECT_FALSE(ofFile.contains(QStringLiteral("3306OPTION"))); // no part of it
    EXPECT_FALSE(ofFile.contains(QStringLiteral("db")));
}

TEST(Passwords, areFoundWhereTheValuesOfTheFileHoldItsOwnWords)
{
    const auto server = [](const char* host, const char* password, const char* port) {
        return passwordsIn(QStringLiteral("DRIVER={MySQL ODBC 3.51 Driver};SERVER=%1;DATABASE=b;"
                                          "USER=u;PASSWORD=%2;port=%3OPTION=35")
                               .arg(QString::fromUtf8(host), QString::fromUtf8(password),
                                    QString::fromUtf8(port)));
    };
    // The brace of the host's takes in all up to the one of the password.
    EXPECT_TRUE(server(";PASSWORD={", "=}", "3306").contains(QStringLiteral("=}")));
    EXPECT_TRUE(server("db", ";", "1;PORT=2").contains(QStringLiteral(";")));
    EXPECT_TRUE(server("db", "ab", "1;port=2").contains(QStringLiteral("ab")));
    // Nothing but such a word: a text that holds it is left out.
    EXPECT_TRUE(server("db", ";port=", "3306").contains(QStringLiteral(";port=")));
}

TEST(Passwords, areFoundHoweverLongTheyAre)
{
    const QString password(100'000, u'a');
    EXPECT_EQ(passwordsIn(QStringLiteral("DSN=x;PWD={") + password + QStringLiteral("};UID=u")),
              QStringList({u'{' + password + u'}', password}));
    EXPECT_EQ(passwordsIn(QStringLiteral("DSN=x;PWD=") + password + QStringLiteral(";UID=u")),
              QStringList({password}));
    EXPECT_EQ(passwordsIn(ofPhpFile(password)), QStringList({password}));
}

TEST(Passwords, areNotFoundWhereThereIsNone)
{
    EXPECT_EQ(passwords("DSN=MonKalo"), QStringList());
    EXPECT_EQ(passwords("SERVER=;DATABASE=;USER=;PASSWORD=;port=3306OPTION=35"), QStringList());
    EXPECT_EQ(passwordsIn(ofPhpFile(QString())), QStringList());
    EXPECT_EQ(passwordsIn(ofPhpFile(QStringLiteral(" "))), QStringList());
    EXPECT_EQ(passwordsIn(ofPhpFile(QStringLiteral("\u00a0 \u00a0 "))), QStringList());
}

TEST(ADriversText, isShownWhenNoPasswordStandsInIt)
{
    EXPECT_EQ(shown(kDenied, QStringLiteral("hunter2")), kDenied);
    EXPECT_EQ(shown(kDenied, QString()), kDenied);
    EXPECT_EQ(shown(kDenied, QStringLiteral("aGk=")), kDenied);
    EXPECT_EQ(withoutPasswords({QString(), 0, kDenied}, {}), kDenied);
}

TEST(ADriversText, isLeftOutWholeWhenAPasswordStandsInIt)
{
    const QString hidden = kHidden + QStringLiteral("\nSQLSTATE 28000, code 1045");
    for (const char* password : {"anne", "ANNE", "a", "'", "localhost", "x;anne", "{anne}",
                                 " anne ", "\"anne\"", "x;y=anne", "an'ne", "an\\ne"}) {
        EXPECT_EQ(shown(kDenied, QString::fromUtf8(password)), hidden) << password;
    }
}

TEST(ADriversText, isLeftOutInWhateverFormItHoldsThePassword)
{
    // Each a driver's own way of writing what it was given.
    for (const auto& [password, text] : std::initializer_list<std::pair<const char*, const char*>>{
             {"a b%c", "no host 'a%20b%25c'"},
             {"été", "no host 'Ã©tÃ©'"},
             {"été", "no host '?t?'"},
             {"it's", "near 'it\\'s'"},
             {"it's", "near 'it''s'"},
             {"Secret", "no host 'SECRET'"}}) {
        const QString answer = shown(QString::fromUtf8(text), QString::fromUtf8(password));
        EXPECT_TRUE(answer.startsWith(kHidden)) << answer.toStdString();
    }
}

TEST(ADriversText, takesItsCodesAlongWhenThePasswordIsOneOfThem)
{
    EXPECT_EQ(shown(QStringLiteral("error 1045"), QStringLiteral("1045")), kHidden);
    EXPECT_EQ(shown(QStringLiteral("error 2"), QStringLiteral("2")), kHidden);
}
