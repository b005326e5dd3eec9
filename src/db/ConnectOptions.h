#pragma once

#include <QString>
#include <chrono>

/// What is added to a connection string on its way to the driver.
namespace db
{

/// How long an answer is waited for. A server gives up waiting for somebody else's lock before
/// that (MariaDbProduct), so that it is known then that nothing was done.
constexpr std::chrono::milliseconds kAnswerLimit{10'000};

/// The driver or the data source that a connection string names: the value of its DRIVER or DSN,
/// without braces; empty when it has no such word.
[[nodiscard]] QString driverIn(const QString& connectString);
[[nodiscard]] QString dataSourceIn(const QString& connectString);

/// The connection string with the limits that a driver of this name understands; the driver manager
/// knows it before there is a connection. For MySQL's: 15 s to connect and kAnswerLimit for an
/// answer, as it pays no heed to ODBC's own login timeout, and without limits a silent server would
/// hang the program. For SQLite's see withFileLimits.
[[nodiscard]] QString withLimits(const QString& connectString, const QString& driver);

/// The connection string for a data source that is SQLite's. The driver's own wait for another
/// program's lock, 100 s, would look like a hang: with this it gives up after two. And it makes no
/// empty file in the place of one that is missing.
[[nodiscard]] QString withFileLimits(const QString& connectString);

} // namespace db
