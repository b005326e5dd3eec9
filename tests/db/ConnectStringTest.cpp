#include "db/ConnectString.h"

#include "support/RuntimeMatchers.h"

#include <QDir>
#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>

using namespace db;
using runtime::ErrorNumber;

namespace
{

class ConnectString : public testing::Test
{
protected:
    [[nodiscard]] QString folder() const { return m_folder.path(); }
    [[nodiscard]] QString file(const QString& baseName) const
    {
        return folder() + QStringLiteral("/app_data/") + baseName + QStringLiteral(".php");
    }

    void writeBytes(const QByteArray& bytes, const QString& baseName = QStringLiteral("SaKalo"))
    {
        QDir().mkpath(QFileInfo(file(baseName)).path());
        QFile php(file(baseName));
        ASSERT_TRUE(php.open(QIODevice::WriteOnly));
        php.write(bytes);
    }

    PhpConfiguration read(const QByteArray& bytes)
    {
        writeBytes(bytes);
        return readPhpConfiguration(file(QStringLiteral("SaKalo")));
    }

private:
    QTemporaryDir m_folder;
};

} // namespace

TEST_F(ConnectString, namesTheTrimmedDataSourceAndReadsNoFile)
{
    const ConnectStrings strings =
        BuildConnectString(QStringLiteral("  MonKalo "), false, {QStringLiteral("/nowhere"), {}});
    EXPECT_EQ(strings.ConnectString, QStringLiteral("DSN=MonKalo"));
    EXPECT_EQ(strings.DsnString, QStringLiteral("DSN=MonKalo"));
}

TEST_F(ConnectString, takesServerAccountAndPortFromThePhpFile)
{
    writeBytes("<?php\n$host=\"db1\";\n$login=\"kalo\";\n$mot_de_passe=\"se;cr\"et\";\n"
               "$Base=\"sa\";\n$port=\"3310\";\n?>\n");
    const ConnectStrings strings =
        BuildConnectString(QStringLiteral("SaKalo"), true, {folder(), {}});
    EXPECT_EQ(strings.ConnectString,
              QStringLiteral("DRIVER={MySQL ODBC 3.51 Driver};SERVER=db1;DATABASE=sa;USER=kalo;"
                             "PASSWORD=se;cr\"et;port=3310OPTION=35"));
    EXPECT_EQ(strings.DsnString, QStringLiteral("DSN=SaKalo"));
}

TEST_F(ConnectString, hasPort3306AndEmptyValuesWhereTheFileSaysNothing)
{
    writeBytes("$host=\"db1\";\n");
    EXPECT_EQ(BuildConnectString(QStringLiteral("SaKalo"), true, {folder(), {}}).ConnectString,
              QStringLiteral("DRIVER={MySQL ODBC 3.51 Driver};SERVER=db1;DATABASE=;USER=;"
                             "PASSWORD=;port=3306OPTION=35"));
}

TEST_F(ConnectString, takesTheBaseNameUntrimmedInThePath)
{
    writeBytes("$host=\"trimmed\";\n", QStringLiteral("Sa"));
    writeBytes("$host=\"blank\";\n", QStringLiteral(" Sa"));
    const ConnectStrings strings = BuildConnectString(QStringLiteral(" Sa"), true, {folder(), {}});
    EXPECT_TRUE(strings.ConnectString.contains(QStringLiteral("SERVER=blank;")));
    EXPECT_EQ(strings.DsnString, QStringLiteral("DSN=Sa"));
}

TEST_F(ConnectString, raisesFileNotFoundAndNamesTheMissingFile)
{
    const auto error = test::errorOf([this] {
        return BuildConnectString(QStringLiteral("Absent"), true, {folder(), {}});
    });
    EXPECT_EQ(error.number(), ErrorNumber::FileNotFound);
    EXPECT_EQ(error.text(), QStringLiteral("File not found"));
    EXPECT_TRUE(error.activity().contains(QStringLiteral("Absent.php")));
}

TEST_F(ConnectString, takesTheSystemsFileWhereTheProgramHasNone)
{
    const QString system = folder() + QStringLiteral("/system");
    const auto server = [&] {
        return BuildConnectString(QStringLiteral("SaKalo"), true, {folder(), system}).ConnectString;
    };
    QDir(folder()).mkpath(QStringLiteral("app_data")); // empty
    writeBytes("$host=\"systems\";\n", QStringLiteral("../system/app_data/SaKalo"));
    EXPECT_TRUE(server().contains(QStringLiteral("SERVER=systems;")));
    writeBytes("$host=\"own\";\n");
    EXPECT_TRUE(server().contains(QStringLiteral("SERVER=own;")));
}

TEST_F(ConnectString, namesTheProgramsOwnFileWhereThereIsNone)
{
    const auto error = test::errorOf([this] {
        return BuildConnectString(QStringLiteral("Absent"), true,
                                  {folder(), QStringLiteral("/nowhere")});
    });
    EXPECT_TRUE(error.activity().contains(folder() + QStringLiteral("/app_data/Absent.php")));
}

TEST_F(ConnectString, cutsByPositionOnly)
{
    // Seven characters dropped at the start, two at the end, whatever they are.
    EXPECT_EQ(read("$host = \"db1\" ;\n").host, QStringLiteral(" \"db1\""));
    EXPECT_EQ(read("$host = \"db1\";\n").host, QStringLiteral(" \"db1"));
    EXPECT_EQ(read("$host='db1';\n").host, QStringLiteral("db1"));
    EXPECT_EQ(read("$host=\"db1\"\n").host, QStringLiteral("db"));
    EXPECT_EQ(read("$host=\"db1\"; // x\n").host, QStringLiteral("db1\"; //"));
    EXPECT_EQ(read("$mot_de_passe=\"a\";\n").password, QStringLiteral("a"));
    EXPECT_EQ(read("$login=\"b\";\n").login, QStringLiteral("b"));
    EXPECT_EQ(read("$Base=\"c\";\n").base, QStringLiteral("c"));
    EXPECT_EQ(read("$port=\"1\";\n").port, QStringLiteral("1"));
}

TEST_F(ConnectString, takesEveryLineThatStartsWithTheVariable)
{
    // $hostname starts with $host: five characters more than the cut expects stay in the value.
    EXPECT_EQ(read("$hostname=\"x\";\n").host, QStringLiteral("me=\"x"));
}

TEST_F(ConnectString, letsALaterLineOverrideAnEarlierOne)
{
    EXPECT_EQ(read("$host=\"a\";\n$host=\"b\";\n").host, QStringLiteral("b"));
}

TEST_F(ConnectString, ignoresLinesThatDoNotStartWithAVariableInItsVeryCase)
{
    const PhpConfiguration php =
        read(" $host=\"a\";\n\t$login=\"b\";\n$base=\"c\";\n$PORT=\"1\";\n//$Base=\"d\";\n\n");
    EXPECT_EQ(php.host, QString());
    EXPECT_EQ(php.login, QString());
    EXPECT_EQ(php.base, QString());
    EXPECT_EQ(php.port, QStringLiteral("3306"));
}

TEST_F(ConnectString, isEmptyForALineOfExactlyWhatIsDropped)
{
    EXPECT_EQ(read("$host=\"\";\n").host, QString());
}

TEST_F(ConnectString, raisesInvalidProcedureCallForAShorterLine)
{
    EXPECT_EQ(test::errorNumberOf([this] { return read("$host=\";\n"); }),
              ErrorNumber::InvalidProcedureCall);
    EXPECT_EQ(test::errorNumberOf([this] { return read("$mot_de_passe\n"); }),
              ErrorNumber::InvalidProcedureCall);
}

TEST_F(ConnectString, readsEveryKindOfLineEnd)
{
    const PhpConfiguration php = read("$host=\"a\";\r\n$login=\"b\";\r$Base=\"c\";");
    EXPECT_EQ(php.host, QStringLiteral("a"));
    EXPECT_EQ(php.login, QStringLiteral("b"));
    EXPECT_EQ(php.base, QStringLiteral("c"));
}

TEST_F(ConnectString, readsUtf8WithOrWithoutAMarkAndLatin1)
{
    EXPECT_EQ(read("$Base=\"\xc3\xa9t\xc3\xa9\";\n").base, QStringLiteral("été"));
    EXPECT_EQ(read("\xef\xbb\xbf$host=\"\xc3\xa9\";\n").host, QStringLiteral("é"));
    EXPECT_EQ(read("$Base=\"\xe9t\xe9\";\n").base, QStringLiteral("été"));
}
