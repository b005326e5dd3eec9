#pragma once

#include <QByteArray>
#include <QString>

namespace test
{

/// A MariaDB server that runs on this machine, as those see it who use it; who started it and who
/// will end it is another matter (MariaDbServer, SharedServer).
class MariaDbAccess
{
public:
    /// The account that may do everything. It has no password.
    static const QString kAdministrator;

    explicit MariaDbAccess(quint16 port) : m_port(port) {}

    [[nodiscard]] quint16 port() const { return m_port; }

    /// Runs statements, each ended by a semicolon, as administrator in the database (or in none)
    /// with the command line client, which shares nothing with the program's own access; on Windows
    /// by ODBC's plain functions. Returns its tab-separated output without headings. Throws
    /// std::runtime_error when one fails.
    QByteArray runScript(const QString& statements, const QString& database = {}) const;

    /// Creates an account that may connect from this machine with that password; `grants` like
    /// "SELECT ON `base`.*", several separated by ";". An account of that name is replaced, so on a
    /// server that cases share it is one that no other case has.
    void createAccount(const QString& user, const QString& password, const QString& grants) const;

    /// The connection string as the program builds it from the web application's file.
    [[nodiscard]] QString connectString(const QString& database, const QString& user,
                                        const QString& password) const;

protected:
    void setPort(quint16 port) { m_port = port; }

private:
    quint16 m_port;
};

} // namespace test
