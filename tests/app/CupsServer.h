#pragma once

#include <QProcess>
#include <QString>

namespace test
{

/// A print server of this process alone, on the loopback interface, with one queue. Its printer
/// keeps the documents that it is sent as files in `outputFolder`. It ends with the object.
class CupsServer
{
public:
    /// Why there is none to be had on this machine; empty when there is one.
    [[nodiscard]] static QString missing();

    /// Throws std::runtime_error when it does not start.
    CupsServer();
    ~CupsServer();
    CupsServer(const CupsServer&) = delete;
    CupsServer& operator=(const CupsServer&) = delete;

    /// What the variable CUPS_SERVER names: address and port.
    [[nodiscard]] QString address() const { return QStringLiteral("127.0.0.1:%1").arg(m_port); }
    [[nodiscard]] static QString queue() { return QStringLiteral("Couloir"); }
    [[nodiscard]] QString outputFolder() const { return m_folder + QStringLiteral("/printed"); }
    /// The documents printed so far, waiting for the first one when there is none.
    [[nodiscard]] QStringList printedFiles() const;

private:
    void writeConfiguration() const;
    void start();
    void addQueue() const;

    QString m_folder;
    quint16 m_port = 0;
    QProcess m_process;
};

} // namespace test
