#pragma once

#include "form/Colour.h"

#include <QByteArray>
#include <vector>

namespace appearance
{

/// What a palette file says: its line k gives entry k of the table of row colours, from 0.
struct PaletteFile {
    /// Chosen by the first line alone.
    enum class Layout {
        Numbers,    ///< one number per line: the colour's value; the first line holds no TAB
        Components, ///< five fields separated by TAB: two free ones, then red, green and blue
    };

    Layout layout = Layout::Numbers;
    /// The entries before the first fault, which is most often the end of the file; at most 256.
    std::vector<form::Colour> entries;
    /// The entry from which the entries 2 onward come again, 0 for none: the first one that equals
    /// entry 0, or the line count of a Components file of fewer than 255 good lines.
    int repeatFrom = 0;

    /// A Numbers file must be complete; a Components file may end anywhere, even in its first line.
    [[nodiscard]] bool isUsable() const;
};

/// Reads the bytes of a palette file; bytes that are none give entries up to the first fault.
/// Lines end with CR LF; LF or CR alone, as other systems' editors write them, end a line too.
[[nodiscard]] PaletteFile parsePalette(const QByteArray& bytes);

} // namespace appearance
