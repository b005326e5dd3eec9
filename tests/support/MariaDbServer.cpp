#include "support/MariaDbServer.h"

#include "support/ChildProgram.h"
#include "support/OdbcConfiguration.h"
#include "support/TestFolder.h"

#include <QDir>
#include <QLockFile>
#include <arpa/inet.h>
#include <netinet/in.h>
#include <stdexcept>
#include <sys/socket.h>
#include <unistd.h>

namespace test
{
namespace
{

const QString administrator = QStringLiteral("administrator");

/// A server for a few small tables that nobody will miss.
QStringList commonOptions(const QString& folder)
{
    return {QStringLiteral("--no-defaults"),
            QStringLiteral("--datadir=") + folder,
            QStringLiteral("--lower-case-table-names=1"),
            QStringLiteral("--character-set-server=utf8mb4"),
            QStringLiteral("--innodb-log-file-size=4M"),
            QStringLiteral("--innodb-buffer-pool-size=16M"),
            QStringLiteral("--innodb-flush-log-at-trx-commit=0"),
            QStringLiteral("--innodb-doublewrite=0"),
            QStringLiteral("--innodb-use-native-aio=0"),
            QStringLiteral("--key-buffer-size=1M"),
            QStringLiteral("--aria-pagecache-buffer-size=8M"),
            QStringLiteral("--performance-schema=off")};
}

/// A data folder with nothing but the server's own tables, made once per build tree.
QString templateFolder()
{
    constexpr int longestWaitMilliseconds = 120000;
    const QString finished = sharedFolder() + QStringLiteral("/mariadb-template");
    QDir().mkpath(sharedFolder());
    QLockFile lock(finished + QStringLiteral(".lock"));
    lock.setStaleLockTime(0); // only the maker's death frees it
    if (!lock.tryLock(longestWaitMilliseconds)) {
        throw std::runtime_error("nobody finishes the template of the MariaDB server");
    }
    if (!QDir(finished).exists()) {
        const QString unfinished = finished + QStringLiteral(".unfinished");
        QDir(unfinished).removeRecursively();
        // Without --user: given one, the script hands it a folder of the installed server, too.
        runProgram(findProgram(QStringLiteral("mariadb-install-db")),
                   commonOptions(unfinished)
                       << QStringLiteral("--auth-root-authentication-method=normal")
                       << QStringLiteral("--skip-test-db"));
        QDir().rename(unfinished, finished);
    }
    return finished;
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

MariaDbServer::MariaDbServer()
{
    static int counter = 0;
    m_folder = processFolder() + QStringLiteral("/mariadb-%1").arg(++counter);
    runProgram(QStringLiteral("cp"), {QStringLiteral("-r"), templateFolder(), m_folder});
    writeFile(m_folder + QStringLiteral("/accounts.sql"),
              QStringLiteral("CREATE OR REPLACE USER %1@'%';\n"
                             "GRANT ALL ON *.* TO %1@'%' WITH GRANT OPTION;\n")
                  .arg(administrator));
    startSomewhere();
}

void MariaDbServer::startSomewhere()
{
    constexpr int attempts = 5; // another process may take the port that was free
    for (int i = 0; i < attempts; ++i) {
        if (start()) {
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

MariaDbServer& MariaDbServer::shared()
{
    static MariaDbServer server;
    return server;
}

bool MariaDbServer::start()
{
    constexpr int longestStartMilliseconds = 60000;
    m_port = freePort();
    dieWithParent(m_process);
    QStringList options = commonOptions(m_folder)
                          << QStringLiteral("--socket=server.sock") // in the data folder
                          << QStringLiteral("--port=%1").arg(m_port)
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

QByteArray MariaDbServer::runScript(const QString& statements, const QString& database) const
{
    QStringList arguments = {QStringLiteral("--no-defaults"),
                             QStringLiteral("--host=127.0.0.1"),
                             QStringLiteral("--port=%1").arg(m_port),
                             QStringLiteral("--user=") + administrator,
                             QStringLiteral("--default-character-set=utf8mb4"),
                             QStringLiteral("--batch"),
                             QStringLiteral("--skip-column-names")};
    if (!database.isEmpty()) {
        arguments << database;
    }
    return runProgram(findProgram(QStringLiteral("mariadb")), arguments, statements.toUtf8());
}

void MariaDbServer::createAccount(const QString& user, const QString& password,
                                  const QString& grants) const
{
    QString script =
        QStringLiteral("CREATE OR REPLACE USER '%1'@'%' IDENTIFIED BY '%2';\n").arg(user, password);
    for (const QString& grant : grants.split(u';', Qt::SkipEmptyParts)) {
        script += QStringLiteral("GRANT %2 TO '%1'@'%';\n").arg(user, grant);
    }
    runScript(script);
}

QString MariaDbServer::connectString(const QString& database, const QString& user,
                                     const QString& password) const
{
    static_cast<void>(OdbcConfiguration::instance()); // where the driver has its name
    return QStringLiteral("DRIVER={MySQL ODBC 3.51 Driver};SERVER=127.0.0.1;DATABASE=%1;USER=%2;"
                          "PASSWORD=%3;port=%4OPTION=35")
        .arg(database, user, password)
        .arg(m_port);
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

} // namespace test
