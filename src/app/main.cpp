#include "app/Application.h"
#include "app/ErrorReport.h"
#include "app/ExitCode.h"
#include "app/PlClasse.h"
#include "app/PlatformTexts.h"
#include "files/WholeFile.h"
#include "shell/CommandLine.h"
#include "shell/Export.h"
#include "shell/Player.h"

#include <QScopeGuard>
#include <QStyleFactory>
#include <QTranslator>

namespace
{

using app::kDone;
using app::kFailed;
using app::kUsage;

bool hasDisplay()
{
#ifdef Q_OS_WIN
    return true;
#else
    return !qEnvironmentVariableIsEmpty("DISPLAY") ||
           !qEnvironmentVariableIsEmpty("WAYLAND_DISPLAY") ||
           !qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM");
#endif
}

/// The toolkit's remarks about its surroundings, such as a folder that a nightly job does not have,
/// stay out of the program's own lines on standard error.
void hushToolkit()
{
    qInstallMessageHandler([](QtMsgType type, const QMessageLogContext&, const QString& text) {
        if (type == QtCriticalMsg || type == QtFatalMsg) {
            app::writeError(text);
        }
    });
}

/// An export draws in memory, with the same fonts whether or not there is a display.
void drawInMemory()
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
}

shell::Settings openSettings(const shell::CommandLine& line)
{
    return line.settingsFile.isEmpty() ? shell::Settings::perUser()
                                       : shell::Settings::fromFile(line.settingsFile);
}

engine::Surroundings surroundingsFor(const shell::CommandLine& line)
{
    engine::Surroundings surroundings;
    surroundings.applicationFolder = QCoreApplication::applicationDirPath();
    surroundings.seed = line.seed;
    surroundings.plain = line.plain;
    return surroundings;
}

/// An export plays on a program of its own: it saves no settings.
void exportWithoutWindow(const shell::CommandLine& line)
{
    shell::Shell shell(openSettings(line), surroundingsFor(line));
    shell.Form_Load();
    shell.fitPicture();
    shell.Form_Activate();
    shell::play(shell, line);
    const QString told =
        shell::exportPlan(shell, line.exportFile, {line.allPages, line.allowIncomplete});
    if (!told.isEmpty()) {
        app::writeError(told);
    }
}

int runWindow(app::Application& application, const shell::CommandLine& line)
{
    app::PlClasse window(openSettings(line), surroundingsFor(line));
    application.onFault = [&window](const runtime::RunTimeError& fault) { window.fail(fault); };
    const auto untie =
        qScopeGuard([&application] { application.onFault = app::Application::tellAndExit; });
    return window.run(line);
}

/// The command line, read without a display: a mistake or --help needs none.
shell::CommandLine readCommandLine(int argc, char* argv[])
{
    const QCoreApplication arguments(argc, argv);
    return shell::CommandLine::parse(QCoreApplication::arguments());
}

int runProgram(int argc, char* argv[])
{
    const bool display = hasDisplay();
    const shell::CommandLine line = readCommandLine(argc, argv);
    if (line.help) {
        app::writeOutput(shell::CommandLine::helpText());
        return kDone;
    }
    if (line.version) {
        app::writeOutput(QStringLiteral("Tempora " TEMPORA_VERSION "\n"));
        return kDone;
    }
    const bool exporting = !line.exportFile.isEmpty();
    if (!exporting && !display) {
        app::writeError(QStringLiteral("Pas d’écran : la fenêtre ne peut pas s’ouvrir. Le plan "
                                       "s’écrit dans un fichier avec --export (voir --help)."));
        return kFailed;
    }
    if (exporting) {
        drawInMemory();
    }
    QApplication::setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    app::Application application(argc, argv);
    QTranslator french;
    if (app::loadFrenchTexts(french)) {
        QCoreApplication::installTranslator(&french);
    }
    if (exporting) {
        exportWithoutWindow(line);
        return kDone;
    }
    return runWindow(application, line);
}

} // namespace

int main(int argc, char* argv[])
{
    hushToolkit();
    QCoreApplication::setApplicationName(QStringLiteral("Tempora"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TEMPORA_VERSION));
    try {
        return runProgram(argc, argv);
    } catch (const files::ExportError& error) {
        app::writeError(QString::fromUtf8(error.what()));
        return kFailed;
    } catch (const shell::UsageError& error) {
        app::writeError(QString::fromUtf8(error.what()));
        return kUsage;
    } catch (...) {
        app::reportRunTimeError(nullptr, runtime::faultInFlight());
        return kFailed;
    }
}
