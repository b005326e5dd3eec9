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

/// Waits for the next line of the program's output.
QByteArray nextLine(QProcess& process)
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

XSession::XSession(QSize screen)
{
    startServer(screen);
    startWindowManager();
}

XSession::~XSession()
{
    end(m_windowManager);
    end(m_server);
}

void XSession::startServer(QSize screen)
{
    dieWithParent(m_server);
    // The server chooses a free display and writes its number.
    m_server.start(
        QStringLiteral("Xvfb"),
        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-screen"),
         QStringLiteral("0"), QStringLiteral("%1x%2x24").arg(screen.width()).arg(screen.height()),
         QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-noreset")});
    m_display = ':' + nextLine(m_server);
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
    while (nextLine(m_windowManager) != "ready") {
        // It also writes what it has to remark on the system's menus.
    }
}

void byHand(const QString& commands)
{
    const QString hand = findProgram(QStringLiteral("xdotool"));
    const QStringList words = commands.split(u' ', Qt::SkipEmptyParts);
    constexpr int attempts = 100; // each lost to a window that vanished under the search
    for (int attempt = 1; words.contains(QStringLiteral("--sync")) && attempt < attempts;
         ++attempt) {
        try {
            runProgram(hand, words);
            return;
        } catch (const std::runtime_error& error) {
            if (!QByteArray(error.what()).contains("BadWindow")) {
                throw;
            }
        }
    }
    runProgram(hand, words);
}

} // namespace test
