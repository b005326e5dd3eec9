#pragma once

#include "paint/DrawingTarget.h"
#include "print/Sheet.h"

#include <QPainter>

namespace print
{

/// Twips that the header takes above the hours, and the footer below the plan.
constexpr int kHeaderTwips = 1050;
constexpr int kFooterTwips = 300;

/// Prints the header: the labels `XSalle`, `Label4`, `Label1` and `Tot` at their own places and in
/// their own fonts, the title with the picked date or the day, and beside them what else tells a
/// reader which plan this is.
void PrintHeader(QPainter& surface, const paint::DrawingTarget& target, const Sheet& sheet);

/// Prints the grid and row by row the room, its places and the boxes.
void PrintPlanBody(QPainter& surface, const paint::DrawingTarget& target, const Sheet& sheet);

/// Prints which rooms the sheet leaves out, what the hatching means, and the number of the page
/// when it is one of a whole room set.
void printFooter(QPainter& surface, const paint::DrawingTarget& target, const Sheet& sheet);

} // namespace print
