// The executable under the user's hands when the database fails a gesture: the run-time error, exit
// code 1, and tables that hold either the whole record or nothing of it.

#include "ScreenPlan.h"
#include "app/PlanView.h"
#include "app/TemporaProcess.h"
#include "support/CuttingProxy.h"
#include "support/FileHolder.h"
#include "support/MariaDbServer.h"
#include "support/OdbcConfiguration.h"
#include "support/TestFolder.h"
#include "support/TinyFaculty.h"
#include "support/XSession.h"

#include <QDir>
#include <QScreen>
#include <optional>

using namespace test;

namespace
{

const QStringList arguments = {"--date", "2025-03-17"};
const QString adding =
    "Enregistrement de l’absence de la classe « G2 » (17/03/2025, 10h15, salle B2)";
const QString searching =
    "Recherche de l’absence de la classe « G2 » (17/03/2025, 10h15, salle B2)";

/// Where the program shows the box of class G2 in room B2: a window of this process, as large and
/// on the same plan, tells it.
QPoint boxOnScreen(const ProgramSetup& setup)
{
    engine::Surroundings environment;
    environment.applicationFolder = setup.applicationFolder();
    app::PlClasse window(shell::Settings::fromFile(setup.settingsFile()), std::move(environment));
    if (!window.load()) {
        throw std::runtime_error("the program does not start");
    }
    window.showMaximized();
    window.activate();
    const int screenWidth = window.screen()->availableGeometry().width();
    awaitThat([&] { return window.isActiveWindow() && window.width() >= screenWidth; },
              "a window as large as the screen");
    window.play(shell::CommandLine::parse(QStringList{"tempora"} + arguments));
    auto* const view = window.findChild<app::PlanView*>("PlanView");
    for (const plan::PlanRow& row : window.shell().engine().content().rows) {
        for (const plan::PlanBox& box : row.boxes) {
            if (row.room == u"B2" && box.cell.CellClassList == u"G2") {
                const QRectF band =
                    paint::overlayPlaces(window.shell().form(), view->target(), row.index, box)
                        .ZAbs;
                const QPointF point(band.left() + band.width() / 4, band.center().y());
                return view->viewport()->mapToGlobal(view->toViewport(point).toPoint());
            }
        }
    }
    throw std::runtime_error("no such box");
}

class TheProgramInUse : public testing::Test
{
protected:
    void TearDown() override { byHand("keyup shift"); } // whatever a failed test has left down

    /// The program's place with a database of that kind, holding the tiny faculty.
    void prepare(DatabaseKind kind, Rights rights = Rights::Marking)
    {
        m_database.emplace(kind);
        createTinyFaculty(*m_database);
        m_setup.emplace(*m_database, rights);
        m_program.emplace(*m_setup);
        m_program->environment.insert("DISPLAY", qEnvironmentVariable("DISPLAY"));
        m_program->environment.insert("QT_QPA_PLATFORM", "xcb");
        m_box = boxOnScreen(*m_setup);
    }

    /// Starts the program, Shift-clicks on the box of class G2 until the program says that it
    /// cannot go on, and acknowledges its message. What it says stands on standard error, too.
    QString errorOfGesture()
    {
        constexpr int attempts = 100;
        constexpr int patienceMilliseconds = 500;
        m_program->startWithSettings(arguments);
        bool failed = false;
        for (int i = 0; i < attempts && !failed && m_program->isRunning(); ++i) {
            byHand(QString("mousemove %1 %2 keydown shift click 1 keyup shift")
                       .arg(m_box.x())
                       .arg(m_box.y()));
            failed = m_program->waitForErrors(patienceMilliseconds);
        }
        for (int i = 0; i < attempts && !m_program->waitForEnd(patienceMilliseconds); ++i) {
            byHand("key Return"); // in vain until the message has the focus
        }
        return m_program->errors();
    }

    void expectError(const QString& errors, int number, const char* text, const QString& activity)
    {
        EXPECT_FALSE(program().isRunning());
        EXPECT_EQ(program().exitCode(), 1);
        EXPECT_EQ(program().output(), "");
        EXPECT_TRUE(errors.startsWith(QString("Run-time error '%1':\n\n").arg(number)))
            << errors.toStdString();
        EXPECT_TRUE(errors.contains(text, Qt::CaseInsensitive)) << errors.toStdString();
        EXPECT_TRUE(errors.endsWith("\n\n" + activity + "\n")) << errors.toStdString();
        EXPECT_EQ(errors.count("Run-time error"), 1) << errors.toStdString();
    }
    /// Class G1 was absent before; nothing else is recorded.
    void expectNothingWritten()
    {
        EXPECT_EQ(database().read("SELECT Classe, Debut FROM abscence"),
                  QList<QStringList>({{"G1", "8h30"}}));
        EXPECT_TRUE(database().read("SELECT * FROM etud_abs").isEmpty());
    }

    [[nodiscard]] TestDatabase& database() { return *m_database; }
    [[nodiscard]] ProgramSetup& setup() { return *m_setup; }
    [[nodiscard]] TemporaProcess& program() { return *m_program; }

private:
    std::optional<TestDatabase> m_database;
    std::optional<ProgramSetup> m_setup;
    std::optional<TemporaProcess> m_program;
    QPoint m_box;
};

constexpr int databaseFailure = -2147467259;
constexpr int statementRefused = -2147217900;

} // namespace

TEST_F(TheProgramInUse, endsWhenTheServerIsLost)
{
    prepare(DatabaseKind::MariaDb);
    const CuttingProxy proxy(MariaDbServer::shared().port(), [](const QByteArray& command) {
        return command.contains("Select * from abscence Where Classe='G2'")
                   ? CuttingProxy::Verdict::Cut
                   : CuttingProxy::Verdict::Pass;
    });
    const QString phpFile = setup().path("app_data/" + database().baseName() + ".php");
    writeFile(phpFile, fileText(phpFile).replace(QString::number(MariaDbServer::shared().port()),
                                                 QString::number(proxy.port())));
    expectError(errorOfGesture(), databaseFailure, "", searching);
    expectNothingWritten();
}

TEST_F(TheProgramInUse, endsWhenAValueIsRefusedByAServer)
{
    prepare(DatabaseKind::MariaDb);
    database().execute("CREATE TRIGGER refusal BEFORE INSERT ON abscence FOR EACH ROW "
                       "SIGNAL SQLSTATE '45000' SET MESSAGE_TEXT = 'no such class'");
    expectError(errorOfGesture(), statementRefused, "no such class", adding);
    expectNothingWritten();
}

TEST_F(TheProgramInUse, endsWhenAValueIsRefusedByAFile)
{
    prepare(DatabaseKind::Sqlite);
    database().execute("CREATE TRIGGER refusal BEFORE INSERT ON abscence "
                       "BEGIN SELECT RAISE(ABORT, 'no such class'); END");
    expectError(errorOfGesture(), statementRefused, "no such class", adding);
    expectNothingWritten();
}

TEST_F(TheProgramInUse, endsWhenItsAccountMayOnlyRead)
{
    prepare(DatabaseKind::MariaDb, Rights::Reading);
    expectError(errorOfGesture(), statementRefused, "command denied", adding);
    expectNothingWritten();
}

TEST_F(TheProgramInUse, endsWhenAnotherProgramLocksTheFile)
{
    prepare(DatabaseKind::Sqlite);
    FileHolder holder(database().file(), "begin immediate;\n");
    expectError(errorOfGesture(), databaseFailure, "locked", adding);
    holder.letGo();
    expectNothingWritten();
}

TEST_F(TheProgramInUse, endsWhenTheDiskIsFull)
{
    prepare(DatabaseKind::Sqlite);
    // A file system that only the program sees, filled to its end. Both end with this process.
    const QString disk = processFolder() + "/full-disk";
    QDir().mkpath(disk);
    program().wrapper = QStringList{"unshare",
                                    "--user",
                                    "--map-root-user",
                                    "--mount",
                                    "sh",
                                    "-c",
                                    "disk=$1; base=$2; shift 2\n"
                                    "mount -t tmpfs -o size=1m none \"$disk\" || exit 77\n"
                                    "cp \"$base\" \"$disk/base.sqlite\"\n"
                                    "cat /dev/zero > \"$disk/rest\" 2>/dev/null\n"
                                    "\"$@\"\n"
                                    "code=$?\n"
                                    "rm \"$disk/rest\"\n"
                                    "cat \"$disk/base.sqlite\" > \"$base\"\n"
                                    "exit $code\n",
                                    "sh",
                                    disk,
                                    database().file()};
    OdbcConfiguration::instance().addSqliteSource("full", disk + "/base.sqlite");
    setup().set("Base", "full");
    const QString errors = errorOfGesture();
    if (program().exitCode() == 77 || errors.startsWith("unshare:")) {
        GTEST_SKIP() << "this system lets nobody mount a file system of his own: "
                     << errors.toStdString();
    }
    expectError(errors, databaseFailure, "full", adding);
    expectNothingWritten();
}
