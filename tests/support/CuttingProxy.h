#pragma once

#include "support/Descriptor.h"

#include <QByteArray>
#include <QString>
#include <functional>
#include <thread>

namespace test
{

/// Stands between one program and a MariaDB server, sees every command that passes, and can cut
/// the connection at any of them, or fall silent as a network does that drops what it is given.
class CuttingProxy
{
public:
    enum class Verdict {
        Pass,
        Cut,       ///< the server never sees the command
        CutAnswer, ///< the server carries the command out, but nobody hears its answer
        // For a command that carries rows back: one that runs a prepared statement.
        CutRows,    ///< the answer breaks off in the middle of its second row, if it has one
        CutColumns, ///< the answer breaks off within the description of its second column
        Stall,      ///< the server never sees the command, and the connection stays open
        StallRows,  ///< the answer comes to a halt in the middle of its second row
    };
    /// Sees a command as sent: its code in the first byte, then the rest; an SQL text is readable
    /// in it. Runs on the proxy's own thread.
    using Judge = std::function<Verdict(const QByteArray& command)>;

    // The codes of the commands that carry a statement's text or run a prepared statement.
    static constexpr char kQuery = 0x03;
    static constexpr char kPrepare = 0x16;
    static constexpr char kExecute = 0x17;
    // Those that nobody waits for: the proxy may see them after what the program does next.
    static constexpr char kQuit = 0x01;
    static constexpr char kCloseStatement = 0x19;

    /// Throws std::runtime_error when no port is to be had.
    CuttingProxy(quint16 serverPort, Judge judge);
    ~CuttingProxy();
    CuttingProxy(const CuttingProxy&) = delete;
    CuttingProxy& operator=(const CuttingProxy&) = delete;

    [[nodiscard]] quint16 port() const { return m_port; }
    /// The server's connection string, turned to the proxy.
    [[nodiscard]] QString through(const QString& connectString) const;

private:
    void run();
    void serve(const Descriptor& program);
    void converse(const Descriptor& program, const Descriptor& server);

    quint16 m_serverPort;
    quint16 m_port = 0;
    Judge m_judge;
    Descriptor m_listener;
    Descriptor m_end; ///< becomes readable when the proxy is to end
    std::thread m_thread;
};

} // namespace test
