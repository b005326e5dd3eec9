#pragma once

#include <QDate>
#include <QString>
#include <array>

/// Dates as the window shows them: in French whatever the system's language.
namespace runtime
{

/// Names of the six teaching days, Monday first: the items of the day list.
[[nodiscard]] const std::array<QString, 6>& frenchDayNames();

/// The date in the form "dd/MMMM/YYYY" in upper case: 01/SEPTEMBRE/2026. Empty for no date.
[[nodiscard]] QString frenchLongDate(QDate date);

/// The date in the form "dddd dd/MM/yyyy": mardi 24/11/2026. Empty for no date.
[[nodiscard]] QString frenchDayAndDate(QDate date);

/// Whether the character may stand between the parts of a typed date.
[[nodiscard]] bool isDateSeparator(QChar character);

/// The date that somebody typed, day first: 27/11/2026, 27-11-26, 27.11.2026, 27112026 or 271126.
/// Two digits are a year of this century. A missing month or year is that of `shown`: 27, 27/11 or
/// 2711. Null for any other text.
[[nodiscard]] QDate fromTypedDate(const QString& text, QDate shown);

} // namespace runtime
