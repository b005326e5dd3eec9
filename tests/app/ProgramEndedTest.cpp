// The executable that is ended, by its driver's fault or by somebody else, in the middle of an
// export: the file keeps what it held.

#include "app/TemporaProcess.h"
#include "support/CuttingProxy.h"
#include "support/MariaDbServer.h"
#include "support/TestFolder.h"
#include "support/TinyFaculty.h"

#include <QDir>
#include <atomic>
#include <csignal>
#include <future>

using namespace test;
using Verdict = CuttingProxy::Verdict;

namespace
{

/// An export over a connection of which a test decides.
class AnExportThatIsEnded : public testing::Test
{
protected:
    AnExportThatIsEnded()
    {
        createTinyFaculty(database);
        const QString php = setup.path(QString("app_data/%1.php").arg(database.baseName()));
        writeFile(php, fileText(php).replace(QString::number(MariaDbServer::shared().port()),
                                             QString::number(proxy.port())));
        writeFile(file, "the former file");
    }
    void expectTheFormerFile() const
    {
        EXPECT_EQ(fileText(file), "the former file");
        EXPECT_EQ(QDir(folder).entryList(QDir::Files | QDir::Hidden), QStringList({"plan.json"}));
    }
    [[nodiscard]] QStringList arguments() const { return {"--export", file, "--day", "0"}; }

    TestDatabase database{DatabaseKind::MariaDb};
    /// What happens to the first question about the timetable.
    std::atomic<Verdict> verdict = Verdict::Pass;
    std::promise<void> asked;
    std::atomic<bool> isAsked = false;
    CuttingProxy proxy{MariaDbServer::shared().port(), [this](const QByteArray& command) {
                           if (!command.contains("emplois") || verdict == Verdict::Pass) {
                               return Verdict::Pass;
                           }
                           if (!isAsked.exchange(true)) {
                               asked.set_value();
                           }
                           return verdict.load();
                       }};
    ProgramSetup setup{database};
    TemporaProcess program{setup};
    QString folder = setup.path("exports");
    QString file = folder + "/plan.json";
};

} // namespace

// The driver (3.1.15) falls over an answer that breaks off among its columns; nobody can catch
// that.
TEST_F(AnExportThatIsEnded, byItsDriversFaultLeavesTheFormerFile)
{
    verdict = Verdict::CutColumns;
    EXPECT_NE(program.run(arguments()), 0);
    EXPECT_TRUE(isAsked);
    expectTheFormerFile();
}

TEST_F(AnExportThatIsEnded, byASignalLeavesTheFormerFile)
{
    verdict = Verdict::Stall;
    for (const int signal : {SIGTERM, SIGHUP, SIGKILL}) {
        isAsked = false;
        asked = {};
        program.startWithSettings(arguments());
        asked.get_future().wait();
        kill(static_cast<pid_t>(program.processId()), signal);
        EXPECT_TRUE(program.waitForEnd());
        EXPECT_NE(program.exitCode(), 0) << signal;
        expectTheFormerFile();
    }
}
