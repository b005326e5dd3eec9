#include "app/CupsServer.h"

#include "support/ChildProgram.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QEventLoop>
#include <QFile>
#include <QFileInfo>
#include <QFileSystemWatcher>
#include <QTcpServer>
#include <QTcpSocket>
#include <QTimer>
#include <stdexcept>

namespace test
{
namespace
{

/// A program of the print system: the one that the test script unpacked, else the machine's own.
QString program(const QString& name)
{
    const QString unpacked = QStringLiteral(TEMPORA_CUPS "/usr/sbin/") + name;
    return QFileInfo(unpacked).isExecutable() ? unpacked : findProgram(name);
}

/// The folder that holds the server's parts: /usr, or where they were unpacked.
QString prefix()
{
    return QFileInfo(program(QStringLiteral("cupsd"))).absoluteDir().filePath(QStringLiteral(".."));
}

quint16 freePort()
{
    QTcpServer probe;
    return probe.listen(QHostAddress::LocalHost) ? probe.serverPort() : quint16{0};
}

// The printer: lists itself, or keeps the document of a job in the folder that its address names.
const QString printer = QStringLiteral(R"(#!/bin/sh
[ $# -gt 0 ] || { echo 'file keep "Unknown" "Keeps documents"'; exit 0; }
folder=${DEVICE_URI#keep:}
cat "${6:--}" >"$folder/$1.part" && mv "$folder/$1.part" "$folder/$1.pdf"
)");

// Everything below one folder. An account other than root must be named, though the printer runs as
// whoever runs the server.
const QString files = QStringLiteral(R"(ServerRoot %1/etc
ServerBin %1/bin
DataDir %2/share/cups
RequestRoot %1/spool
TempDir %1/tmp
CacheDir %1/cache
StateDir %1/state
DocumentRoot %1/etc
AccessLog %1/access.log
ErrorLog %1/error.log
PageLog %1/page.log
Printcap
User nobody
Group nogroup
)");

const QString server = QStringLiteral(R"(Listen 127.0.0.1:%1
Browsing Off
DefaultAuthType None
WebInterface No
<Location />
  Order allow,deny
  Allow localhost
</Location>
<Policy default>
  <Limit All>
    Order allow,deny
    Allow localhost
  </Limit>
</Policy>
)");

} // namespace

QString CupsServer::missing()
{
    for (const QString& name : {QStringLiteral("cupsd"), QStringLiteral("lpadmin")}) {
        if (program(name).isEmpty()) {
            return QStringLiteral("no print server on this machine: %1 is not there").arg(name);
        }
    }
    return {};
}

CupsServer::CupsServer() : m_folder(processFolder() + QStringLiteral("/cups"))
{
    writeConfiguration();
    start();
    addQueue();
}

CupsServer::~CupsServer()
{
    m_process.terminate();
    if (!m_process.waitForFinished()) {
        m_process.kill();
        m_process.waitForFinished();
    }
    QDir(m_folder).removeRecursively();
}

void CupsServer::writeConfiguration() const
{
    for (const char* name : {"etc", "bin/backend", "spool", "tmp", "cache", "state", "printed"}) {
        QDir().mkpath(m_folder + u'/' + QString::fromLatin1(name));
    }
    for (const char* name : {"daemon", "notifier"}) {
        const QString part = QString::fromLatin1(name);
        QFile::link(prefix() + QStringLiteral("/lib/cups/") + part,
                    m_folder + QStringLiteral("/bin/") + part);
    }
    const QString keep = m_folder + QStringLiteral("/bin/backend/keep");
    writeFile(keep, printer);
    QFile::setPermissions(keep, QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
    writeFile(m_folder + QStringLiteral("/files.conf"), files.arg(m_folder, prefix()));
}

void CupsServer::start()
{
    constexpr int attempts = 500;
    constexpr int millisecondsBetween = 20;
    m_port = freePort();
    writeFile(m_folder + QStringLiteral("/server.conf"), server.arg(m_port));
    dieWithParent(m_process);
    m_process.start(program(QStringLiteral("cupsd")),
                    {QStringLiteral("-f"), QStringLiteral("-c"),
                     m_folder + QStringLiteral("/server.conf"), QStringLiteral("-s"),
                     m_folder + QStringLiteral("/files.conf")});
    m_process.waitForStarted();
    for (int attempt = 0; attempt < attempts; ++attempt) {
        QTcpSocket socket;
        socket.connectToHost(QHostAddress::LocalHost, m_port);
        if (socket.waitForConnected()) {
            return;
        }
        if (m_process.waitForFinished(millisecondsBetween)) { // it says nothing once it is ready
            break;
        }
    }
    throw std::runtime_error("the print server does not start: " +
                             m_process.readAllStandardError().toStdString());
}

void CupsServer::addQueue() const
{
    runProgram(program(QStringLiteral("lpadmin")),
               {QStringLiteral("-h"), address(), QStringLiteral("-p"), queue(),
                QStringLiteral("-E"), QStringLiteral("-v"),
                QStringLiteral("keep:") + outputFolder(), QStringLiteral("-m"),
                QStringLiteral("raw")});
}

QStringList CupsServer::printedFiles() const
{
    constexpr int longestWaitMilliseconds = 60000;
    const auto documents = [this] {
        return QDir(outputFolder()).entryInfoList({QStringLiteral("*.pdf")}, QDir::Files);
    };
    QEventLoop loop;
    QFileSystemWatcher watcher({outputFolder()});
    QObject::connect(&watcher, &QFileSystemWatcher::directoryChanged, &loop, [&] {
        if (!documents().isEmpty()) {
            loop.quit();
        }
    });
    if (documents().isEmpty()) {
        QTimer::singleShot(longestWaitMilliseconds, &loop, &QEventLoop::quit);
        loop.exec();
    }
    QStringList paths;
    for (const QFileInfo& file : documents()) {
        paths.append(file.absoluteFilePath());
    }
    return paths;
}

} // namespace test
