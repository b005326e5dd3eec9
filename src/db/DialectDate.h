#pragma once

#include <QDate>
#include <QString>
#include <optional>

/// What a date in a dialect's format means.
namespace db
{

/// The first of the hundred years that two digits mean to SQLite: a timetable holds no dates before
/// 2000, and the text that stands for a date there is the program's own.
constexpr int kSqliteFirstYear = 2000;
/// The first of those that they mean to Access, in a date literal.
constexpr int kAccessFirstYear = 1930;

/// The date that a text in a dialect's date format means: 03/15/07, 03/15/2007, 2007/03/15 or
/// 2007-03-15, outer blanks aside. A year of two digits is one of the hundred from `firstYear` on.
/// Nothing for any other text.
[[nodiscard]] std::optional<QDate> dialectDate(const QString& text, int firstYear);

} // namespace db
