#pragma once

#include <QString>
#include <QStringList>

namespace plan
{

/// The names in a list joined by tabs. Only the last one (a single one, too) is trimmed. A list
/// that ends with a tab has a last name that is empty.
[[nodiscard]] QStringList classNames(const QString& classes);

/// The same in one line, without blanks around the names and without empty ones, for reading.
[[nodiscard]] QStringList classWords(const QString& classes);

/// Names in a sentence: a dozen of them, and how many others there are.
[[nodiscard]] QString fewNames(const QStringList& names);

/// The class that decides a box's markers: the first of the list, trimmed.
[[nodiscard]] QString firstClass(const QString& classes);

} // namespace plan
