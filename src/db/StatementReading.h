#pragma once

#include <QString>
#include <QStringList>
#include <QStringView>

// What is known of a statement from the places of its literals, without asking a database.
namespace db
{

/// Whether drivers and servers read the character as it stands, wherever it does.
[[nodiscard]] bool isHarmless(QChar character);

/// The letters and digits that the text begins with, behind blanks.
[[nodiscard]] QStringView firstWord(QStringView text);

/// Whether a literal followed by this word makes no condition on any product, whatever comes then.
[[nodiscard]] bool breaksOff(QStringView word);

/// Whether the statement, a selection whose texts between quotes all belong to its one condition,
/// is certain to be refused: one of its literals never ends, or a word follows it that continues no
/// condition. `texts`: all that it has of somebody else's, between quotes or not. Quotes are read
/// as they stand; of a text that could make anything else of the statement nothing is certain.
[[nodiscard]] bool isCertainlyRefused(const QString& sql, const QStringList& texts);

/// Whether each literal ends, stands where one can stand, and all per cent signs are within them:
/// what a server then refuses the statement for is not the places of its quotes.
[[nodiscard]] bool keepsToItsLiterals(const QString& sql, bool backslashEscapes);

} // namespace db
