// The executable at its start, on a screen, when it cannot start: whatever the stage, the user sees
// why, and the program ends with 1 once that is acknowledged.

#include "app/TemporaProcess.h"
#include "support/CuttingProxy.h"
#include "support/Gate.h"
#include "support/MariaDbServer.h"
#include "support/MutePort.h"
#include "support/TestFolder.h"
#include "support/TinyFaculty.h"
#include "support/XSession.h"

#include <csignal>
#include <gtest/gtest.h>

using namespace test;

namespace
{

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
    const MutePort server(MutePort::Calls::Taken);
    serve(server.number());
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
    const MutePort server(MutePort::Calls::Taken);
    serve(server.number());
    program.startWithSettings({});
    byHand("search --sync --onlyvisible --name ^Tempora$");
    kill(static_cast<pid_t>(program.processId()), SIGTERM);
    EXPECT_TRUE(program.waitForEnd());
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(program.errors(), "");
}

TEST_F(TheProgramOnAScreen, goesOnToItsWindowWhenASlowServerAnswers)
{
    TestDatabase served(DatabaseKind::MariaDb);
    createTinyFaculty(served);
    const ProgramSetup onServer(served);
    Gate gate;
    const CuttingProxy proxy(MariaDbServer::shared().port(), [&gate](const QByteArray&) {
        gate.pass();
        return CuttingProxy::Verdict::Pass;
    });
    const QString phpFile = onServer.path("app_data/" + served.baseName() + ".php");
    writeFile(phpFile, fileText(phpFile).replace(QString::number(MariaDbServer::shared().port()),
                                                 QString::number(proxy.port())));
    TemporaProcess slow(onServer);
    slow.environment = program.environment;
    gate.shut();
    slow.startWithSettings({});
    byHand("search --sync --onlyvisible --name ^Tempora$");
    gate.open();
    byHand("search --sync --onlyvisible --name Planning");
    EXPECT_TRUE(slow.isRunning());
    kill(static_cast<pid_t>(slow.processId()), SIGTERM);
    EXPECT_TRUE(slow.waitForEnd());
    EXPECT_EQ(slow.exitCode(), 0);
    EXPECT_EQ(slow.errors(), "");
}

TEST_F(TheProgramOnAScreen, saysThatAServerIsSilentWhenNobodyLeavesIt)
{
    const MutePort server(MutePort::Calls::Taken);
    serve(server.number());
    const QString errors = acknowledged();
    EXPECT_TRUE(errors.startsWith("Run-time error '-2147467259':")) << errors.toStdString();
    EXPECT_EQ(program.exitCode(), 1);
}
