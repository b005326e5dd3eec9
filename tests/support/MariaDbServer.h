#pragma once

#include "support/MariaDbAccess.h"

#include <QProcess>
#include <QString>

namespace test
{

/// A private MariaDB server on a free port of this machine, with its own data folder in the build
/// tree. It ends with the object, and with the process however that ends.
class MariaDbServer : public MariaDbAccess
{
public:
    /// Starts the server; throws std::runtime_error when it does not start.
    MariaDbServer();
    ~MariaDbServer();
    MariaDbServer(const MariaDbServer&) = delete;
    MariaDbServer& operator=(const MariaDbServer&) = delete;

    /// The server for everything that a test does in a database of its own: that of the ctest run
    /// (SharedServer), shared with cases that run at the same time; without ctest one of this
    /// process, started at the first call. Whoever stops a server, changes its settings or counts
    /// what it does makes one of his own instead.
    [[nodiscard]] static const MariaDbAccess& shared();

    [[nodiscard]] qint64 processId() const { return m_process.processId(); }

    /// Ends the server at once, as a crash would.
    void kill();
    /// Ends the server at once and starts it again with the data it had, on another port.
    void restart();
    /// The same, on the port that it had. Throws std::runtime_error when somebody has taken it.
    void restartInPlace();

private:
    void startSomewhere();
    bool start(quint16 port);

    QString m_folder;
    QProcess m_process;
};

} // namespace test
