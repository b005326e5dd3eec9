#pragma once

#include <QFrame>

namespace app
{

/// All that is to be read of a cell of the plan, for whoever has no mouse to rest on it. It takes
/// the focus, so that screen readers read it out and its words can be copied; Escape, Enter or a
/// click elsewhere closes it, and the focus goes back to the plan.
class CellNote : public QFrame
{
public:
    CellNote(const QString& text, QWidget* parent);

    /// Opens below this place of the screen, or above it where there is no room.
    void showBeside(const QRect& place);

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace app
