#pragma once

#include "db/Diagnostics.h"

#include <QString>
#include <QStringList>

/// What of a connection string must not show, whatever a driver says.
namespace db
{

/// The passwords that a connection string holds, longest first, each once: as they were written, as
/// a driver may read them (without braces, up to a semicolon), and the parts that it may take for
/// words of their own. A password that holds ";" ends where a word of every day begins ("SERVER=",
/// "port=", …); one of the PHP file ends where the text behind it begins.
[[nodiscard]] QStringList passwordsIn(const QString& connectString);

/// The driver's text. One in which a password stands, in whatever case or encoding, is left out
/// whole, and a French sentence says so, with the driver's codes: stars in its place would tell
/// the length of the rest, and with "***ccess denied" the password itself.
[[nodiscard]] QString withoutPasswords(const Diagnostics& diagnostics,
                                       const QStringList& passwords);

} // namespace db
