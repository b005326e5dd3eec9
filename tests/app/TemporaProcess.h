#pragma once

#include "support/ProgramSetup.h"

#include <QMap>
#include <QProcess>
#include <QProcessEnvironment>
#include <QString>
#include <QStringList>

namespace test
{

/// The executable as a user starts it, in the application folder of a setup: without a display, and
/// with a configuration folder of its own. It ends with the object at the latest.
class TemporaProcess
{
public:
    explicit TemporaProcess(const ProgramSetup& setup);
    ~TemporaProcess();
    TemporaProcess(const TemporaProcess&) = delete;
    TemporaProcess& operator=(const TemporaProcess&) = delete;

    /// The environment of the next start.
    QProcessEnvironment environment;
    /// The largest file that the next start may write, in bytes; 0 for no limit. What is beyond
    /// fails as on a full disk.
    quint64 largestFile = 0;

    /// The command that the next start gives the program's path and arguments to; none by default.
    QStringList wrapper;

    void start(const QStringList& arguments);
    /// The same with the setup's settings file in front.
    void startWithSettings(const QStringList& arguments);
    /// Waits for the end. False when it does not come.
    [[nodiscard]] bool waitForEnd();
    [[nodiscard]] bool waitForEnd(int milliseconds);
    /// Waits until there is something on standard error. False when nothing comes.
    [[nodiscard]] bool waitForErrors(int milliseconds);
    /// Starts with the setup's settings file and these arguments, and waits for the end.
    /// Returns the exit code, -1 after a crash or without an end.
    int run(const QStringList& arguments);

    [[nodiscard]] bool isRunning() const { return m_process.state() != QProcess::NotRunning; }
    [[nodiscard]] qint64 processId() const { return m_process.processId(); }
    /// After the end.
    [[nodiscard]] int exitCode() const;
    [[nodiscard]] QString output() { return QString::fromUtf8(m_process.readAllStandardOutput()); }
    [[nodiscard]] QString errors() { return QString::fromUtf8(m_process.readAllStandardError()); }

    /// Where it finds the user's own settings.
    [[nodiscard]] QString configurationFolder() const { return m_folder + "/config"; }

private:
    QString m_folder;
    QString m_settingsFile;
    QProcess m_process;
};

} // namespace test
