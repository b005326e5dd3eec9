#pragma once

#include <QString>
#include <QStringList>

/// What is shown of a box text.
namespace plan
{

/// The text with every "[", "]" and "&" replaced by one blank: its length stays.
[[nodiscard]] QString SanitizeCellText(const QString& text);

/// The lines of a box text as written, without the blanks around them and without empty ones: a
/// box text ends with a separator that would push its lines off the middle.
[[nodiscard]] QStringList writtenLines(const QString& text);

} // namespace plan
