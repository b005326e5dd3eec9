// tempora-setup: where the timetable is, for people who know nothing of data sources. A program of
// its own, as it writes settings that the plan's program never writes.

#include "app/CommonControls.h"
#include "app/ErrorReport.h"
#include "app/ExitCode.h"
#include "app/PlatformTexts.h"
#include "app/setup/SetupWizard.h"
#include "db/DataSources.h"
#include "runtime/RunTimeError.h"

#include <QApplication>
#include <QCommandLineParser>
#include <QDir>
#include <QFileInfo>
#include <QProcess>
#include <QStandardPaths>
#include <QStyleFactory>

namespace
{

/// A program that lies beside this one.
QString besideThis(const QString& name)
{
#ifdef Q_OS_WIN
    const QString ending = QStringLiteral(".exe");
#else
    const QString ending;
#endif
    return QCoreApplication::applicationDirPath() + u'/' + name + ending;
}

/// In one step: what is interrupted leaves no half faculty.
void makeDemo(const QString& file)
{
    const QString half = file + QStringLiteral(".neuf");
    QDir().mkpath(QFileInfo(file).path());
    QFile::remove(half);
    const int code = QProcess::execute(besideThis(QStringLiteral("tempora-demo")),
                                       {QStringLiteral("--sqlite"), half});
    if (code != 0 || !QFile::rename(half, file)) {
        throw runtime::RunTimeError(runtime::ErrorNumber::PathFileAccess, file);
    }
}

app::SetupWizard::Ties tiesOf(const QStringList& planOptions)
{
    app::SetupWizard::Ties ties;
    ties.drivers = db::installedDrivers;
    ties.applicationFolder = QCoreApplication::applicationDirPath();
    ties.demoFile = QStandardPaths::writableLocation(QStandardPaths::AppDataLocation) +
                    QStringLiteral("/demo.sqlite");
    ties.makeDemo = makeDemo;
    ties.openPlan = [planOptions] {
        QProcess::startDetached(besideThis(QStringLiteral("tempora")), planOptions);
    };
#ifdef Q_OS_WIN
    ties.offersAccess = true;
    const QString driver = besideThis(QStringLiteral("pilote-sqlite"));
    if (QFileInfo::exists(driver)) {
        // It asks for an administrator; this is Qt's way to let Windows ask.
        ties.installSqliteDriver = [driver] { return QProcess::startDetached(driver, {}); };
    }
#endif
    return ties;
}

int runSetup()
{
    QCommandLineParser parser;
    parser.setApplicationDescription(
        QStringLiteral("Demande où est l’emploi du temps, et règle Tempora en conséquence."));
    parser.addHelpOption();
    parser.addVersionOption();
    const QCommandLineOption settings(
        QStringLiteral("settings"),
        QStringLiteral("règle ce fichier au lieu des paramètres de l’utilisateur"),
        QStringLiteral("FICHIER.ini"));
    parser.addOption(settings);
    parser.process(*QCoreApplication::instance());
    const QString file = parser.value(settings);
    QStringList planOptions;
    if (!file.isEmpty()) {
        planOptions << QStringLiteral("--settings") << file;
    }
    app::SetupWizard wizard(file.isEmpty() ? shell::Settings::perUser()
                                           : shell::Settings::fromFile(file),
                            tiesOf(planOptions));
    return wizard.exec() == QDialog::Accepted ? app::kDone : app::kFailed;
}

} // namespace

int main(int argc, char* argv[])
{
    static_cast<void>(app::initCommonControls());
    QCoreApplication::setApplicationName(QStringLiteral("Tempora"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TEMPORA_VERSION));
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QApplication application(argc, argv);
    QTranslator french;
    if (app::loadFrenchTexts(french)) {
        QCoreApplication::installTranslator(&french);
    }
    try {
        return runSetup();
    } catch (...) {
        app::reportRunTimeError(nullptr, runtime::faultInFlight());
        return app::kFailed;
    }
}
