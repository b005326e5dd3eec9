#include "support/MariaDbServer.h"

#include "support/ChildProgram.h"
#include "support/SharedServer.h"
#include "support/TestFolder.h"

#include <QDir>
#include <arpa/inet.h>
#include <netinet/in.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace test
{
namespace
{

/// A server for a few small tables that nobody will miss.
QStringList commonOptions(const QString& folder)
{
    return {QStringLiteral("--no-defaults"), QStringLiteral("--datadir=") + folder,
            QStringLiteral("--lower-case-table-names=1"),
            QStringLiteral("--character-set-server=utf8mb4"),
            QStringLiteral("--innodb-log-file-size=4M"),
            QStringLiteral("--innodb-buffer-pool-size=16M"),
            QStringLiteral("--innodb-flush-log-at-trx-commit=0"),
            QStringLiteral("--innodb-doublewrite=0"), QStringLiteral("--innodb-use-native-aio=0"),
            QStringLiteral("--key-buffer-size=1M"),
            QStringLiteral("--aria-pagecache-buffer-size=8M"),
            QStringLiteral("--performance-schema=off"),
            // Of each connection that breaks it would write a line, and nobody reads them: it would
            // come to a halt with its pipe full.
            QStringLiteral("--log-warnings=0")};
}

/// A data folder with nothing but the server's own tables.
QString templateFolder()
{
    return madeOnce(QStringLiteral("mariadb-template"), [](const QString& folder) {
        // Without --user: given one, the script hands it a folder of the installed server, too.
        runProgram(findProgram(QStringLiteral("mariadb-install-db")),
                   commonOptions(folder)
                       << QStringLiteral("--auth-root-authentication-method=normal")
                       << QStringLiteral("--skip-test-db"));
    });
}

/// A port that was free a moment ago.
quint16 freePort()
{
    const int descriptor = socket(AF_INET, SOCK_STREAM, 0);
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof(address);
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    const bool ok =
        bind(descriptor, generic, length) == 0 && getsockname(descriptor, generic, &length) == 0;
    close(descriptor);
    return ok ? ntohs(address.sin_port) : quint16{0};
}

} // namespace

MariaDbServer::MariaDbServer() : MariaDbAccess(0)
{
    static int counter = 0;
    m_folder = processFolder() + QStringLiteral("/mariadb-%1").arg(++counter);
    runProgram(QStringLiteral("cp"), {QStringLiteral("-r"), templateFolder(), m_folder});
    writeFile(m_folder + QStringLiteral("/accounts.sql"),
              QStringLiteral("CREATE OR REPLACE USER %1@'%';\n"
                             "GRANT ALL ON *.* TO %1@'%' WITH GRANT OPTION;\n")
                  .arg(kAdministrator));
    startSomewhere();
}

void MariaDbServer::startSomewhere()
{
    constexpr int attempts = 5; // another process may take the port that was free
    for (int i = 0; i < attempts; ++i) {
        if (start(freePort())) {
            return;
        }
    }
    throw std::runtime_error("the MariaDB server does not start: " +
                             m_process.readAllStandardError().toStdString());
}

MariaDbServer::~MariaDbServer()
{
    kill();
    QDir(m_folder).removeRecursively();
}

const MariaDbAccess& MariaDbServer::shared()
{
    static const auto ofTheRun = SharedServer::ofThisRun();
    if (ofTheRun) {
        static const MariaDbAccess access(ofTheRun->port);
        return access;
    }
    static const MariaDbServer own;
    return own;
}

bool MariaDbServer::start(quint16 port)
{
    constexpr int longestStartMilliseconds = 60000;
    setPort(port);
    dieWithParent(m_process);
    QStringList options = commonOptions(m_folder)
                          << QStringLiteral("--socket=server.sock") // in the data folder
                          << QStringLiteral("--port=%1").arg(port)
                          << QStringLiteral("--bind-address=127.0.0.1")
                          << QStringLiteral("--skip-name-resolve")
                          << QStringLiteral("--init-file=") + m_folder +
                                 QStringLiteral("/accounts.sql");
    if (geteuid() == 0) { // the server wants to be told that this is meant
        options << QStringLiteral("--user=root");
    }
    m_process.start(findProgram(QStringLiteral("mariadbd")), options);
    m_process.setReadChannel(QProcess::StandardError);
    QByteArray log;
    while (m_process.state() != QProcess::NotRunning &&
           m_process.waitForReadyRead(longestStartMilliseconds)) {
        log += m_process.readAll();
        if (log.contains("ready for connections")) {
            // Nobody reads on: the server must not wait for a full pipe.
            m_process.closeReadChannel(QProcess::StandardError);
            return true;
        }
    }
    kill();
    return false;
}

void MariaDbServer::kill()
{
    if (m_process.state() != QProcess::NotRunning) {
        m_process.kill();
        m_process.waitForFinished();
    }
}

void MariaDbServer::restart()
{
    kill();
    startSomewhere();
}

void MariaDbServer::restartInPlace()
{
    kill();
    if (!start(port())) {
        throw std::runtime_error("the MariaDB server does not start again on its port");
    }
}

} // namespace test
