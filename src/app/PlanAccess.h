#pragma once

#include <QAccessible>
#include <functional>

namespace app
{

class PlanView;

/// Lets screen readers and other helps find the plan as a table (`PlanTable`). Wanted once an
/// application exists; doing it again changes nothing.
void offerPlanToScreenReaders();

/// Passes an event on to whoever listens.
using SendAccessEvent = std::function<void(QAccessibleEvent& event)>;

/// Tells what has changed in the plan since this was last called: its name, its description, its
/// cells. Cells that were handed out are gone by then.
void tellChanges(PlanView& view, const SendAccessEvent& send);

/// The same to the screen readers of the system, while there are any.
void tellScreenReaders(PlanView& view);

/// Tells which cell the keyboard is on, or that it is on none: the focus is the cell's, else the
/// plan's as a whole. Nothing while the keys go to another widget.
void tellCursor(PlanView& view, const SendAccessEvent& send);

/// The same to the screen readers of the system, while there are any.
void tellScreenReadersOfCursor(PlanView& view);

} // namespace app
