#pragma once

#include <QString>
#include <vector>

namespace app
{

/// A stretch of a text.
struct TextPlace {
    int start = 0; ///< position of its first character
    int length = 0;

    friend bool operator==(const TextPlace&, const TextPlace&) = default;
};

/// Where the wanted words stand in a text, as people search: accents, capitals and the kinds of
/// apostrophe and blank do not matter. From the beginning on, without overlaps; none for blanks
/// alone.
[[nodiscard]] std::vector<TextPlace> placesOf(const QString& text, const QString& wanted);

} // namespace app
