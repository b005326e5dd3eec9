#pragma once

#include <QDate>
#include <QString>
#include <optional>

/// What the embedded SQLite does not speak of the Access dialect, as pure text functions.
namespace db
{

/// The statement with Access's own forms turned into SQLite's, outside quoted texts and names only:
/// #03/15/07# becomes '2007-03-15' and ISNULL(x) becomes (x IS NULL). Whatever is not understood
/// stays, for the database to refuse.
[[nodiscard]] QString adaptToEmbedded(const QString& sql);

/// What a year of two digits means to the embedded SQLite: 2000 to 2099. A timetable holds no dates
/// before 2000.
constexpr int kEmbeddedFirstYear = 2000;
/// What it means to Access, in a date literal: 1930 to 2029.
constexpr int kAccessFirstYear = 1930;

/// The date that a text in a dialect's date format means: 03/15/07, 03/15/2007, 2007/03/15 or
/// 2007-03-15, outer blanks aside. A year of two digits is one of the hundred from `firstYear` on.
/// Nothing for any other text.
[[nodiscard]] std::optional<QDate> dialectDate(const QString& text,
                                               int firstYear = kEmbeddedFirstYear);

} // namespace db
