#pragma once

#include "form/Colour.h"

#include <QString>

namespace files
{

/// The text for an HTML page, between tags or inside a quoted attribute. Control characters, which
/// a page may not hold, become blanks.
[[nodiscard]] QString escaped(const QString& text);

/// The colour as "#rrggbb".
[[nodiscard]] QString colorText(form::Colour color);

/// A whole page in French around a body, with the style of the plan. It is well-formed XML, too.
[[nodiscard]] QString htmlDocument(const QString& title, const QString& body);

/// The same as a page that loads itself again after so many seconds.
[[nodiscard]] QString refreshingHtmlDocument(const QString& title, const QString& body,
                                             int seconds);

/// The same with another style in the plan's place. Requires: none of the characters that are
/// escaped.
[[nodiscard]] QString htmlDocument(const QString& title, const QString& body, const QString& style);

} // namespace files
