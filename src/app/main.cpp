#include "app/Application.h"
#include "app/CommonControls.h"
#include "app/EndSignal.h"
#include "app/ErrorReport.h"
#include "app/ExitCode.h"
#include "app/PlClasse.h"
#include "app/PlatformTexts.h"
#include "app/ProgramDress.h"
#include "app/Screen.h"
#include "app/SystemFolder.h"
#include "app/hall/HallDisplay.h"
#include "files/WholeFile.h"
#include "shell/Answers.h"
#include "shell/CommandLine.h"
#include "shell/Export.h"
#include "shell/HallChoices.h"
#include "shell/Player.h"

#include <QScopeGuard>
#include <QTranslator>
#include <algorithm>
#include <cstdlib>
#include <optional>
#include <vector>

namespace
{

using app::kDone;
using app::kFailed;
using app::kUsage;

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

shell::Settings openSettings(const shell::CommandLine& line)
{
    return line.settingsFile.isEmpty() ? shell::Settings::perUser()
                                       : shell::Settings::fromFile(line.settingsFile);
}

engine::Surroundings surroundingsFor(const shell::CommandLine& line)
{
    engine::Surroundings surroundings;
    surroundings.applicationFolder = QCoreApplication::applicationDirPath();
    surroundings.systemFolder = app::systemFolder();
    surroundings.seed = line.seed;
    surroundings.plain = line.plain;
    return surroundings;
}

/// A file is written by a program of its own: it saves no settings.
void writeWithoutWindow(const shell::CommandLine& line)
{
    shell::Shell shell(openSettings(line), surroundingsFor(line));
    shell.Form_Load();
    if (line.answer) {
        const QString told = shell::writeAnswer(shell, line);
        if (!told.isEmpty()) {
            app::writeError(told);
        }
        return;
    }
    shell.fitPicture();
    shell.Form_Activate();
    const shell::CommandLine played =
        line.refresh ? shell::hallPageChoices(line, QDate::currentDate(), shell.weekA()) : line;
    shell::play(shell, played);
    const QString told = shell::exportPlan(
        shell, played.exportFile, {played.allPages, played.allowIncomplete, played.refresh});
    if (!told.isEmpty()) {
        app::writeError(told);
    }
}

int runWindow(app::Application& application, app::EndSignal& signal, const shell::CommandLine& line)
{
    app::PlClasse window(openSettings(line), surroundingsFor(line));
    application.onFault = [&window](const runtime::RunTimeError& fault) { window.fail(fault); };
    const auto untie =
        qScopeGuard([&application] { application.onFault = app::Application::tellAndExit; });
    signal.serve([&window] { window.leave(); });
    // The user may still think better of logging out; the toolkit closes the window once it is
    // done.
    QObject::connect(&application, &QGuiApplication::commitDataRequest, &window,
                     [&window] { window.saveOptions(); });
    const auto serveNoMore = qScopeGuard([&signal] { signal.stop(); });
    return window.run(line);
}

/// Error: what keeps the screen in the hall from showing anything, such as shell::UsageError.
int runDisplay(app::EndSignal& signal, const shell::CommandLine& line)
{
    std::exception_ptr fault;
    app::HallDisplay::Ties ties;
    ties.left = [] { QCoreApplication::exit(kDone); };
    ties.failed = [&fault](const std::exception_ptr& raised) {
        fault = raised;
        QCoreApplication::exit(kFailed);
    };
    const auto open = [line] {
        return std::make_unique<shell::Shell>(openSettings(line), surroundingsFor(line));
    };
    app::HallDisplay display(app::HallReader(open, line), *line.display, ties);
    signal.serve([&display] { display.leave(); });
    const auto serveNoMore = qScopeGuard([&signal] { signal.stop(); });
    display.open();
    const int code = QApplication::exec();
    if (fault) {
        std::rethrow_exception(fault);
    }
    if (display.isReading()) {
        std::_Exit(code); // the driver may be waiting for minutes; there is nothing to save
    }
    return code;
}

/// The toolkit as the program needs it: in French.
class Toolkit
{
public:
    Toolkit(int& argc, char** argv) : m_application(argc, argv)
    {
        app::dressWindows();
        if (app::loadFrenchTexts(m_french)) {
            QCoreApplication::installTranslator(&m_french);
        }
    }

    [[nodiscard]] app::Application& application() { return m_application; }

private:
    app::Application m_application;
    QTranslator m_french;
};

/// The arguments for the toolkit, and the null behind them. On X it has an option "--display" of
/// its own, and would take the next argument for the screen that it is to draw on.
std::vector<char*> withoutDisplay(int argc, char** argv)
{
    std::vector<char*> arguments(argv, argv + argc);
    const auto isDisplay = [](const char* argument) {
        return qstrcmp(argument, "--display") == 0 || qstrcmp(argument, "-display") == 0;
    };
    arguments.erase(std::remove_if(arguments.begin(), arguments.end(), isDisplay), arguments.end());
    arguments.push_back(nullptr);
    return arguments;
}

/// One run of the program, from its arguments to its exit code.
class Program
{
public:
    Program(int& argc, char** argv) : m_argc(argc), m_argv(argv) {}

    /// Whatever fails, at whatever stage, is told: on standard error, and where there is a screen
    /// and no export is made, in a message box.
    [[nodiscard]] int run();

private:
    [[nodiscard]] int serve();
    [[nodiscard]] int tellFault();
    [[nodiscard]] bool canShow();
    void startToolkit();

    int& m_argc;
    char** m_argv;
    // What the toolkit is given; it refers to them as long as it lives.
    std::vector<char*> m_toolkitArguments;
    int m_toolkitCount = 0;
    std::optional<Toolkit> m_toolkit;
    bool m_exports = false;
};

int Program::run()
{
    try {
        return serve();
    } catch (...) {
        try {
            return tellFault();
        } catch (...) { // of the telling itself
            app::writeError(runtime::faultInFlight().message());
            return kFailed;
        }
    }
}

int Program::serve()
{
    QStringList arguments;
    {
        const QCoreApplication toRead(m_argc, m_argv); // a mistake or --help needs no display
        arguments = QCoreApplication::arguments();
    }
    m_exports = shell::CommandLine::asksForFile(arguments);
    const shell::CommandLine line = shell::CommandLine::parse(arguments);
    m_exports = line.writesFile();
    if (line.help) {
        app::writeOutput(shell::CommandLine::helpText());
        return kDone;
    }
    if (line.version) {
        app::writeOutput(QStringLiteral("Tempora " TEMPORA_VERSION "\n"));
        return kDone;
    }
    if (!m_exports && !app::hasDisplay()) {
        app::writeError(QStringLiteral("Pas d’écran : la fenêtre ne peut pas s’ouvrir. Le plan "
                                       "s’écrit dans un fichier avec --export (voir --help)."));
        return kFailed;
    }
    if (m_exports) {
        app::drawInMemory();
        startToolkit();
        writeWithoutWindow(line);
        return kDone;
    }
    app::EndSignal signal; // before the toolkit starts threads of its own
    startToolkit();
    if (line.display) {
        return runDisplay(signal, line);
    }
    return runWindow(m_toolkit->application(), signal, line);
}

/// Of the exception that is being handled.
int Program::tellFault()
{
    try {
        throw;
    } catch (const files::ExportError& error) {
        app::writeError(QString::fromUtf8(error.what()));
        return kFailed;
    } catch (const shell::UsageError& error) {
        const QString text = QString::fromUtf8(error.what());
        app::writeError(text);
        if (canShow()) {
            app::showFault(nullptr, text, {});
        }
        return kUsage;
    } catch (...) {
        const runtime::RunTimeError error = runtime::faultInFlight();
        if (canShow()) {
            app::reportRunTimeError(nullptr, error);
        } else {
            app::writeError(error.message());
        }
        return kFailed;
    }
}

/// Whether a message box can be shown and may be. Starts the toolkit where it has not been needed
/// so far.
bool Program::canShow()
{
    if (m_exports || !app::hasDisplay()) {
        return false;
    }
    if (!m_toolkit) {
        startToolkit();
    }
    return true;
}

void Program::startToolkit()
{
    app::chooseStyle();
    m_toolkitArguments = withoutDisplay(m_argc, m_argv);
    m_toolkitCount = static_cast<int>(m_toolkitArguments.size()) - 1;
    m_toolkit.emplace(m_toolkitCount, m_toolkitArguments.data());
}

} // namespace

int main(int argc, char* argv[])
{
    static_cast<void>(app::initCommonControls());
    hushToolkit();
    QCoreApplication::setApplicationName(QStringLiteral("Tempora"));
    QCoreApplication::setApplicationVersion(QStringLiteral(TEMPORA_VERSION));
    return Program(argc, argv).run();
}
