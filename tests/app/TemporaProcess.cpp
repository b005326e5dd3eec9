#include "app/TemporaProcess.h"

#include "support/ChildProgram.h"
#include "support/OdbcConfiguration.h"

#include <QDir>
#include <QFile>
#include <csignal>
#include <filesystem>
#include <sys/prctl.h>
#include <sys/resource.h>

namespace test
{
namespace
{

constexpr int kLongestRunMilliseconds = 240000;

/// The executable under a path in that folder, which it takes for its application folder.
QString programIn(const QString& folder)
{
    const QString path = folder + "/tempora";
    if (!QFile::exists(path)) {
        std::error_code failed;
        std::filesystem::create_hard_link(TEMPORA_PROGRAM, path.toStdString(), failed);
        if (failed) { // another file system
            QFile::copy(TEMPORA_PROGRAM, path);
        }
    }
    return path;
}

} // namespace

TemporaProcess::TemporaProcess(const ProgramSetup& setup)
    : m_folder(setup.applicationFolder()), m_settingsFile(setup.settingsFile())
{
    static_cast<void>(OdbcConfiguration::instance()); // the drivers, whatever the database
    // As the configuration above has left it.
    environment = QProcessEnvironment::systemEnvironment();
    for (const char* name : {"DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM", "XDG_RUNTIME_DIR"}) {
        environment.remove(name);
    }
    environment.insert("LC_ALL", "C.UTF-8"); // the system's own words in one language
    environment.insert("XDG_CONFIG_HOME", configurationFolder());
    QDir().mkpath(configurationFolder());
}

TemporaProcess::~TemporaProcess()
{
    if (isRunning()) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

void TemporaProcess::start(const QStringList& arguments)
{
    m_process.setProcessEnvironment(environment);
    m_process.setChildProcessModifier([limit = largestFile] {
        prctl(PR_SET_PDEATHSIG, SIGKILL);
        if (limit != 0) {
            const rlimit bytes{limit, limit};
            setrlimit(RLIMIT_FSIZE, &bytes);
            std::signal(SIGXFSZ, SIG_IGN); // the write fails instead
        }
    });
    const QStringList command = wrapper + QStringList{programIn(m_folder)} + arguments;
    m_process.start(command.first(), command.mid(1));
    m_process.waitForStarted();
}

void TemporaProcess::startWithSettings(const QStringList& arguments)
{
    start(QStringList{"--settings", m_settingsFile} + arguments);
}

bool TemporaProcess::waitForEnd()
{
    return waitForEnd(kLongestRunMilliseconds);
}

bool TemporaProcess::waitForEnd(int milliseconds)
{
    return !isRunning() || m_process.waitForFinished(milliseconds);
}

bool TemporaProcess::waitForErrors(int milliseconds)
{
    m_process.setReadChannel(QProcess::StandardError);
    return m_process.bytesAvailable() > 0 || m_process.waitForReadyRead(milliseconds);
}

int TemporaProcess::run(const QStringList& arguments)
{
    startWithSettings(arguments);
    return waitForEnd() ? exitCode() : -1;
}

int TemporaProcess::exitCode() const
{
    return m_process.exitStatus() == QProcess::NormalExit ? m_process.exitCode() : -1;
}

} // namespace test
