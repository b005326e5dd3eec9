#pragma once

#include <QLineEdit>
#include <functional>

namespace app
{

/// A line to type what is looked for, above the list of what was found.
class AskingLine : public QLineEdit
{
public:
    /// The key ↓ in the line. Unlike a shortcut it waits its turn behind the letters that a screen
    /// reader still looks at.
    std::function<void()> onDown;

protected:
    void keyPressEvent(QKeyEvent* event) override;
};

} // namespace app
