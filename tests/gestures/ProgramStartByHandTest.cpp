// The executable at its start, on a screen, when it cannot start: whatever the stage, the user sees
// why, and the program ends with 1 once that is acknowledged.

#include "app/TemporaProcess.h"
#include "support/Descriptor.h"
#include "support/MariaDbServer.h"
#include "support/TestFolder.h"
#include "support/TinyFaculty.h"
#include "support/XSession.h"

#include <arpa/inet.h>
#include <csignal>
#include <gtest/gtest.h>
#include <netinet/in.h>
#include <sys/socket.h>

using namespace test;

namespace
{

/// A server that takes every connection and never says a word.
class SilentServer
{
public:
    SilentServer()
    {
        sockaddr_in address{};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof(address);
        auto* const generic = reinterpret_cast<sockaddr*>(&address);
        EXPECT_EQ(bind(m_socket.number(), generic, length), 0);
        EXPECT_EQ(listen(m_socket.number(), 8), 0);
        EXPECT_EQ(getsockname(m_socket.number(), generic, &length), 0);
        m_port = ntohs(address.sin_port);
    }
    [[nodiscard]] int port() const { return m_port; }

private:
    Descriptor m_socket{socket(AF_INET, SOCK_STREAM, 0)};
    int m_port = 0;
};

class TheProgramOnAScreen : public testing::Test
{
protected:
    void SetUp() override
    {
        createTinyFaculty(database);
        program.environment.insert("DISPLAY", qEnvironmentVariable("DISPLAY"));
        program.environment.insert("QT_QPA_PLATFORM", "xcb");
    }
    /// Makes the program use a server on that port of this machine.
    void serve(int port)
    {
        setup.set("Mysql", "True");
        writeFile(setup.path("app_data/SaKalo.php"),
                  QString("<?php\n$host=\"127.0.0.1\";\n$login=\"planning\";\n"
                          "$mot_de_passe=\"faux\";\n$Base=\"base\";\n$port=\"%1\";\n?>\n")
                      .arg(port));
    }
    /// Starts the program, waits for a message on the screen, and acknowledges it.
    QString acknowledged(const QStringList& arguments = {})
    {
        program.startWithSettings(arguments);
        EXPECT_TRUE(program.waitForErrors(patience));
        byHand("search --sync --onlyvisible --name ^Tempora$");
        EXPECT_TRUE(program.isRunning()) << "nothing waits for the user";
        press("Return");
        return program.errors();
    }
    /// Until the program has ended: in vain until its window has the focus.
    void press(const QString& key)
    {
        for (int i = 0; i < 100 && !program.waitForEnd(300); ++i) {
            byHand("key " + key);
        }
        EXPECT_FALSE(program.isRunning());
    }

    static constexpr int patience = 60000; // milliseconds
    TestDatabase database{DatabaseKind::Sqlite};
    ProgramSetup setup{database};
    TemporaProcess program{setup};
};

} // namespace

TEST_F(TheProgramOnAScreen, showsThatItsSettingsAreDamaged)
{
    writeFile(setup.settingsFile(), "[Settings]\nMadame, Monsieur\n");
    const QString errors = acknowledged();
    EXPECT_TRUE(errors.startsWith("Run-time error '321':")) << errors.toStdString();
    EXPECT_EQ(program.exitCode(), 1);
}

TEST_F(TheProgramOnAScreen, showsThatASettingDoesNotConvert)
{
    setup.set("Total_L_P", QString(65536, 'x'));
    const QString errors = acknowledged();
    EXPECT_TRUE(errors.startsWith("Run-time error '13':")) << errors.toStdString();
    EXPECT_LT(errors.size(), 800);
    EXPECT_EQ(program.exitCode(), 1);
}

TEST_F(TheProgramOnAScreen, showsThatItsDataSourceIsUnknown)
{
    setup.set("Base", "Nulle Part");
    const QString errors = acknowledged();
    EXPECT_TRUE(errors.endsWith("Ouverture de la base de données « Nulle Part »\n"))
        << errors.toStdString();
    EXPECT_EQ(program.exitCode(), 1);
}

TEST_F(TheProgramOnAScreen, showsThatItsPasswordIsWrong)
{
    serve(MariaDbServer::shared().port());
    const QString errors = acknowledged();
    EXPECT_TRUE(errors.contains("denied")) << errors.toStdString();
    EXPECT_FALSE(errors.contains("faux")) << errors.toStdString();
    EXPECT_EQ(program.exitCode(), 1);
}

TEST_F(TheProgramOnAScreen, showsAMistakeOnItsCommandLine)
{
    const QString errors = acknowledged({"--day", "9"});
    EXPECT_TRUE(errors.contains("--day")) << errors.toStdString();
    EXPECT_EQ(program.exitCode(), 2);
}

TEST_F(TheProgramOnAScreen, showsAChoiceThatTheDatabaseDoesNotHave)
{
    EXPECT_EQ(acknowledged({"--tranche", "Hiver"}),
              "--tranche : « Hiver » n’existe pas ; valeurs acceptées : Printemps, Automne\n");
    EXPECT_EQ(program.exitCode(), 2);
}

TEST_F(TheProgramOnAScreen, isLeftWhileItConnectsToAServerThatIsSilent)
{
    const SilentServer server;
    serve(server.port());
    const QString settings = setup.settingsText();
    program.startWithSettings({});
    byHand("search --sync --onlyvisible --name ^Tempora$");
    press("Escape");
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(program.errors(), "");
    EXPECT_EQ(setup.settingsText(), settings);
}

TEST_F(TheProgramOnAScreen, isEndedByASignalWhileItConnects)
{
    const SilentServer server;
    serve(server.port());
    program.startWithSettings({});
    byHand("search --sync --onlyvisible --name ^Tempora$");
    kill(static_cast<pid_t>(program.processId()), SIGTERM);
    EXPECT_TRUE(program.waitForEnd());
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(program.errors(), "");
}

TEST_F(TheProgramOnAScreen, saysThatAServerIsSilentWhenNobodyLeavesIt)
{
    const SilentServer server;
    serve(server.port());
    const QString errors = acknowledged();
    EXPECT_TRUE(errors.startsWith("Run-time error '-2147467259':")) << errors.toStdString();
    EXPECT_EQ(program.exitCode(), 1);
}
