#pragma once

#include "form/Colour.h"

#include <QColor>
#include <QFont>

/// What the screen, pictures and paper draw alike.
namespace paint
{

// The plan's own inks; no file and no option changes them.
inline constexpr QColor kHeaderInk(40, 50, 70);    ///< titles, hours and totals on the screen
inline constexpr QColor kFrameInk(60, 60, 60);     ///< the frames of boxes and labels
inline constexpr QColor kGreyedInk(130, 130, 130); ///< what is there but does not count now
/// The same in the window, where it is read from a screen in a lit room.
inline constexpr QColor kReadableGreyedInk(100, 100, 100);
/// Points that the line of a frame is wide on paper: the thinnest that every printer shows.
inline constexpr double kFrameLine = 0.5;

/// The same colour as the drawing library has it.
[[nodiscard]] inline QColor toColor(form::Colour color)
{
    return {color.red(), color.green(), color.blue()};
}

/// The font of what is drawn on the screen and in pictures.
[[nodiscard]] inline QFont planFont(int pixels, bool bold = false)
{
    QFont font(QStringLiteral("Arial"));
    font.setPixelSize(pixels);
    font.setBold(bold);
    return font;
}

} // namespace paint
