// The window whose user logs out, or that somebody ends: no file and no table is left half.

#include "app/SessionManager.h"
#include "app/TemporaProcess.h"
#include "support/TinyFaculty.h"
#include "support/XSession.h"

#include <csignal>
#include <gtest/gtest.h>
#include <optional>

using namespace test;

namespace
{

class AWindowThatIsLeft : public testing::TestWithParam<DatabaseKind>
{
protected:
    AWindowThatIsLeft() { createTinyFaculty(database); }

    /// Starts the program on that display and waits for its window. `meanwhile` serves what the
    /// program waits for at its start.
    void open(
        const QByteArray& display, const QStringList& arguments = {},
        const std::function<void()>& meanwhile = [] {})
    {
        program.environment.insert("DISPLAY", QString::fromLatin1(display));
        program.environment.insert("QT_QPA_PLATFORM", "xcb");
        program.startWithSettings(arguments);
        meanwhile();
        const QByteArray before = qgetenv("DISPLAY");
        qputenv("DISPLAY", display);
        byHand("search --sync --onlyvisible --name Planning");
        qputenv("DISPLAY", before);
        ASSERT_TRUE(program.isRunning());
    }
    /// Logs out again and again, until the program has got as far as the choices of its command
    /// line.
    void askUntilSaved(SessionManager& session)
    {
        ASSERT_TRUE(session.askToSave());
        for (int i = 0; i < 100 && setup.saved("ChkMatiere") == "0"; ++i) {
            session.callOff();
            ASSERT_TRUE(session.askToSave());
        }
        EXPECT_EQ(setup.saved("ChkMatiere"), "1");
    }
    void expectNothingLost()
    {
        ASSERT_TRUE(program.waitForEnd());
        EXPECT_EQ(setup.settingsText(), settings);
        EXPECT_EQ(database.read("select Classe, Debut from abscence"),
                  QList<QStringList>({{"G1", "8h30"}}));
        database.execute("update salle set places = 31 where Nom = 'A1'"); // nobody holds it
    }

    TestDatabase database{GetParam()};
    ProgramSetup setup{database};
    TemporaProcess program{setup};
    QString settings = setup.settingsText();
};

TEMPORA_ON_BOTH_DATABASES(AWindowThatIsLeft);

} // namespace

TEST_P(AWindowThatIsLeft, byASignalSavesTheOptions)
{
    setup.set("ChkMatiere", "0");
    open(qgetenv("DISPLAY"), {"--show", "class,subject"});
    kill(static_cast<pid_t>(program.processId()), SIGTERM);
    ASSERT_TRUE(program.waitForEnd());
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(program.errors(), "");
    EXPECT_EQ(setup.saved("ChkMatiere"), "1");
    EXPECT_EQ(setup.saved("ChkEnseignant"), "0");
}

TEST_P(AWindowThatIsLeft, byLoggingOutSavesTheOptions)
{
    SessionManager session;
    program.environment.insert("SESSION_MANAGER", session.address());
    setup.set("ChkMatiere", "0");
    open(qgetenv("DISPLAY"), {"--show", "class,subject"},
         [&session] { ASSERT_TRUE(session.waitForProgram()); });
    askUntilSaved(session);
    EXPECT_EQ(setup.saved("ChkEnseignant"), "0");
    EXPECT_TRUE(program.isRunning());
    EXPECT_TRUE(session.end());
    ASSERT_TRUE(program.waitForEnd());
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(program.errors(), "");
}

TEST_P(AWindowThatIsLeft, staysWhenItsUserDoesNotLogOutAfterAll)
{
    SessionManager session;
    program.environment.insert("SESSION_MANAGER", session.address());
    setup.set("ChkMatiere", "0");
    open(qgetenv("DISPLAY"), {"--show", "class,subject"},
         [&session] { ASSERT_TRUE(session.waitForProgram()); });
    askUntilSaved(session);
    session.callOff();
    EXPECT_TRUE(session.askToSave()); // it goes on as before
    session.callOff();
    byHand("search --onlyvisible --name Planning windowactivate --sync");
    byHand("key alt+F4");
    ASSERT_TRUE(program.waitForEnd());
    EXPECT_EQ(program.exitCode(), 0);
    EXPECT_EQ(program.errors(), "");
    EXPECT_EQ(setup.saved("ChkEnseignant"), "0");
}

TEST_P(AWindowThatIsLeft, byTheEndOfItsScreenLeavesFilesAndTablesWhole)
{
    std::optional<XSession> session(std::in_place);
    open(session->display());
    session.reset();
    expectNothingLost();
    EXPECT_NE(program.exitCode(), 0);
}
