// tempora-setup as a process: what it says where there is no window to say it in.

#include <QProcess>
#include <QProcessEnvironment>
#include <gtest/gtest.h>

namespace
{

struct Said {
    int code = -1;
    QString output;
    QString errors;
};

Said setupSays(const QStringList& arguments)
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM"}) {
        environment.remove(name);
    }
    QProcess process;
    process.setProcessEnvironment(environment);
    process.start(TEMPORA_SETUP_PROGRAM, arguments);
    if (!process.waitForFinished() || process.exitStatus() != QProcess::NormalExit) {
        return {};
    }
    return {process.exitCode(), QString::fromUtf8(process.readAllStandardOutput()),
            QString::fromUtf8(process.readAllStandardError())};
}

} // namespace

TEST(TheSetupProgram, tellsItsHelpAndVersionWithoutADisplay)
{
    const Said help = setupSays({"--help"});
    EXPECT_EQ(help.code, 0);
    EXPECT_TRUE(help.output.startsWith("Usage : tempora-setup [options]\n"));
    const Said version = setupSays({"--version"});
    EXPECT_EQ(version.code, 0);
    EXPECT_EQ(version.output, "Tempora " TEMPORA_VERSION "\n");
}

TEST(TheSetupProgram, refusesWhatItDoesNotKnow)
{
    const Said stray = setupSays({"école.sqlite"});
    EXPECT_EQ(stray.code, 2);
    EXPECT_EQ(stray.errors, "Argument inattendu : « école.sqlite » ; voir --help\n");
}

TEST(TheSetupProgram, saysThatItNeedsAScreen)
{
    const Said said = setupSays({});
    EXPECT_EQ(said.code, 1);
    EXPECT_EQ(said.errors, "Pas d’écran : la fenêtre ne peut pas s’ouvrir.\n");
}
