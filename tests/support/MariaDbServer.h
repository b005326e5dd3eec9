#pragma once

#include <QByteArray>
#include <QProcess>
#include <QString>

namespace test
{

/// A private MariaDB server on a free port of this machine, with its own data folder in the build
/// tree. It ends with the object, and with the process however that ends.
class MariaDbServer
{
public:
    /// Starts the server; throws std::runtime_error when it does not start.
    MariaDbServer();
    ~MariaDbServer();
    MariaDbServer(const MariaDbServer&) = delete;
    MariaDbServer& operator=(const MariaDbServer&) = delete;

    /// The server that the tests of this process share, started at the first call. Whoever means
    /// to stop or freeze one makes his own.
    [[nodiscard]] static MariaDbServer& shared();

    [[nodiscard]] quint16 port() const { return m_port; }
    [[nodiscard]] qint64 processId() const { return m_process.processId(); }

    /// Runs statements, each ended by a semicolon, as administrator in the database (or in none)
    /// with the command line client, which shares nothing with the program's own access. Returns
    /// its tab-separated output without headings. Throws std::runtime_error when one fails.
    QByteArray runScript(const QString& statements, const QString& database = {}) const;

    /// Creates an account that may connect from this machine with that password; `grants` like
    /// "SELECT ON `base`.*", several separated by ";".
    void createAccount(const QString& user, const QString& password, const QString& grants) const;

    /// The connection string as the program builds it from the web application's file.
    [[nodiscard]] QString connectString(const QString& database, const QString& user,
                                        const QString& password) const;

    /// Ends the server at once, as a crash would.
    void kill();
    /// Ends the server at once and starts it again with the data it had, on another port.
    void restart();

private:
    void startSomewhere();
    bool start();

    QString m_folder;
    quint16 m_port = 0;
    QProcess m_process;
};

} // namespace test
