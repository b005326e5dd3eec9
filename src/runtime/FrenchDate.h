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

/// The date that `frenchLongDate` wrote. Error: TypeMismatch for any other text.
[[nodiscard]] QDate fromFrenchLongDate(const QString& text);

} // namespace runtime
