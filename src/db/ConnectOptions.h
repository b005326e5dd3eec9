#pragma once

#include <QString>
#include <QStringList>
#include <chrono>

/// What is added to a connection string on its way to the driver, and what of it must not show.
namespace db
{

/// How long an answer is waited for. A server gives up waiting for somebody else's lock before
/// that (MariaDbProduct), so that it is known then that nothing was done.
constexpr std::chrono::milliseconds kAnswerLimit{10'000};

/// The connection string with limits for MySQL's driver, when it names that one: 15 s to connect
/// and kAnswerLimit for an answer. The driver pays no heed to ODBC's own login timeout, and without
/// limits a silent server would hang the program.
[[nodiscard]] QString withServerTimeouts(const QString& connectString);

/// The connection string for a data source that is known to be SQLite's. The driver's own wait for
/// another program's lock, 100 s, would look like a hang; with this it gives up after two.
[[nodiscard]] QString withLockTimeout(const QString& connectString);

/// The passwords that a connection string holds, longest first.
[[nodiscard]] QStringList passwordsIn(const QString& connectString);

/// The text with every one of `passwords` replaced by "***".
[[nodiscard]] QString withoutPasswords(QString text, const QStringList& passwords);

} // namespace db
