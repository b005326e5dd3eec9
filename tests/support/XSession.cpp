#include "support/XSession.h"

#include "support/ChildProgram.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QProcessEnvironment>
#include <stdexcept>

namespace test
{
namespace
{

/// Waits for one line of the program's output.
QByteArray firstLine(QProcess& process)
{
    constexpr int longestStartMilliseconds = 60000;
    while (!process.canReadLine()) {
        if (!process.waitForReadyRead(longestStartMilliseconds)) {
            throw std::runtime_error(process.program().toStdString() + " does not start: " +
                                     process.readAllStandardError().toStdString());
        }
    }
    return process.readLine().trimmed();
}

void end(QProcess& process)
{
    process.terminate();
    process.waitForFinished();
}

} // namespace

XSession::XSession()
{
    startServer();
    startWindowManager();
}

XSession::~XSession()
{
    end(m_windowManager);
    end(m_server);
}

void XSession::startServer()
{
    dieWithParent(m_server);
    // The server chooses a free display and writes its number.
    m_server.start(QStringLiteral("Xvfb"),
                   {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
                    QStringLiteral("0"), QStringLiteral("1366x768x24"), QStringLiteral("-nolisten"),
                    QStringLiteral("tcp"), QStringLiteral("-noreset")});
    m_display = ':' + firstLine(m_server);
}

void XSession::startWindowManager()
{
    const QString home = processFolder() + QStringLiteral("/window-manager");
    QDir().mkpath(home);
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("DISPLAY"), QString::fromLatin1(m_display));
    for (const char* variable : {"HOME", "XDG_CONFIG_HOME", "XDG_CACHE_HOME", "XDG_DATA_HOME"}) {
        environment.insert(QString::fromLatin1(variable), home); // nothing of the user's counts
    }
    m_windowManager.setProcessEnvironment(environment);
    dieWithParent(m_windowManager);
    m_windowManager.start(QStringLiteral("openbox"),
                          {QStringLiteral("--sm-disable"), QStringLiteral("--startup"),
                           QStringLiteral("echo ready")});
    firstLine(m_windowManager);
}

void byHand(const QString& commands)
{
    runProgram(findProgram(QStringLiteral("xdotool")), commands.split(u' ', Qt::SkipEmptyParts));
}

} // namespace test
