// tempora-setup: where the timetable is, for people who know nothing of data sources. A program of
// its own, as it writes settings that the plan's program never writes.

#include "app/CommonControls.h"
#include "app/ErrorReport.h"
#include "app/ExitCode.h"
#include "app/PlatformTexts.h"
#include "app/ProgramDress.h"
#include "app/ProgramFile.h"
#include "app/Screen.h"
#include "app/SystemFolder.h"
#include "app/setup/SetupLine.h"
#include "app/setup/SetupWizard.h"
#include "db/DataSources.h"
#include "runtime/RunTimeError.h"
#include "setup/DriverAdvice.h"
#include "shell/CommandLine.h"

#include <QApplication>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>

namespace
{

/// A program that lies beside this one.
QString besideThis(const QString& name)
{
    return app::programFile(QCoreApplication::applicationDirPath(), name);
}

/// In one step: what is interrupted leaves no half faculty.
void makeDemo(const QString& file)
{
    const QString half = file + QStringLiteral(".neuf");
    QDir().mkpath(QFileInfo(file).path());
    QFile::remove(half);
    const int code = QProcess::execute(besideThis(QStringLiteral("tempora-demo")),
                                       {QStringLiteral("--sqlite"), half});
    if (code == 0) {
        QFile::remove(file);
    }
    if (code != 0 || !QFile::rename(half, file)) {
        throw runtime::RunTimeError(runtime::ErrorNumber::PathFileAccess, file);
    }
}

app::SetupWizard::Ties tiesOf(const QStringList& planOptions)
{
    app::SetupWizard::Ties ties;
    ties.drivers = db::installedDrivers;
    ties.folders = {QCoreApplication::applicationDirPath(), app::systemFolder()};
    ties.demoFile = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                    QStringLiteral("/demo.sqlite");
    ties.makeDemo = makeDemo;
    ties.openPlan = [planOptions] {
        return QProcess::startDetached(besideThis(QStringLiteral("tempora")), planOptions);
    };
    ties.offersAccess = setup::readsAccess();
    const QString driver = besideThis(QStringLiteral("pilote-sqlite"));
    if (QFileInfo::exists(driver)) { // as it does on Windows
        // It asks for an administrator; this is Qt's way to let Windows ask.
        ties.installSqliteDriver = [driver] { return QProcess::startDetached(driver, {}); };
    }
    return ties;
}

int runWizard(const app::SetupLine& line)
{
    QStringList planOptions;
    if (!line.settingsFile.isEmpty()) {
        planOptions << QStringLiteral("--settings") << line.settingsFile;
    }
    app::SetupWizard wizard(line.settingsFile.isEmpty()
                                ? shell::Settings::perUser()
                                : shell::Settings::fromFile(line.settingsFile),
                            tiesOf(planOptions));
    return wizard.exec() == QDialog::Accepted ? app::kDone : app::kFailed;
}

int runWithWindows(int& argc, char** argv, const app::SetupLine& line)
{
    app::chooseStyle();
    QApplication application(argc, argv);
    app::dressWindows();
    QTranslator french;
    if (app::loadFrenchTexts(french)) {
        QCoreApplication::installTranslator(&french);
    }
    try {
        return runWizard(line);
    } catch (...) {
        app::reportRunTimeError(nullptr, runtime::faultInFlight());
        return app::kFailed;
    }
}

int run(int& argc, char** argv)
{
    QStringList arguments;
    {
        const QCoreApplication toRead(argc, argv); // a mistake or --help needs no display
        arguments = QCoreApplication::arguments();
    }
    const app::SetupLine line = app::SetupLine::parse(arguments);
    if (line.help) {
        app::writeOutput(app::SetupLine::helpText());
        return app::kDone;
    }
    if (line.version) {
        app::writeOutput(QStringLiteral("Tempora " TEMPORA_VERSION "\n"));
        return app::kDone;
    }
    if (!app::hasDisplay()) {
        app::writeError(QStringLiteral("Pas d’écran : la fenêtre ne peut pas s’ouvrir."));
        return app::kFailed;
    }
    return runWithWindows(argc, argv, line);
}

} // namespace

int main(int argc, char* argv[])
{
    static_cast<void>(app::initCommonControls());
    QCoreApplication::setApplicationName(QStringLiteral("Tempora"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TEMPORA_VERSION));
    try {
        return run(argc, argv);
    } catch (const shell::UsageError& error) {
        app::writeError(QString::fromUtf8(error.what()));
        return app::kUsage;
    }
}
