#pragma once

#include <QString>

namespace answers
{

/// The text as people search for it: without accents, in small letters, every apostrophe as the one
/// of the keyboard.
[[nodiscard]] QString searchForm(const QString& text);

} // namespace answers
