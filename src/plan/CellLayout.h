#pragma once

#include <QString>

namespace plan
{

/// How the boxes of the current page are laid out; chosen from the display options and the number
/// of rooms per page.
struct CellLayout {
    /// Text between the parts of a box text: a line end on pages of few rooms, else nothing.
    QString CellSeparator;
    /// How many of class, teacher and subject a box shows, 0 to 3.
    int displayStyle = 0;
    /// How a box text is set: see kCentredLines and kWordBreak.
    int CellTextFormat = kCentredLines;

    friend bool operator==(const CellLayout&, const CellLayout&) = default;

    /// Pages of fewer rooms than this have rows high enough for several lines; as the window's
    /// design has it.
    static constexpr double kManyRooms = 20;

    // Row heights in twips, as the window's design has them: for one, two and three parts in a
    // box, and on pages of many rooms.
    static constexpr int kOneLineHeight = 300;
    static constexpr int kTwoLinesHeight = 400;
    static constexpr int kThreeLinesHeight = 700;
    static constexpr int kManyRoomsHeight = 200;

    static constexpr int kCentredLines = 37; ///< centred both ways, lines only as written
    static constexpr int kWordBreak = 16;    ///< from the top left, lines broken between words
};

} // namespace plan
