#pragma once

#include <QString>

namespace answers
{

/// The text as people search for it: without accents and in small letters.
[[nodiscard]] QString searchForm(const QString& text);

} // namespace answers
