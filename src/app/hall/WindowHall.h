#pragma once

#include "app/hall/HallDisplay.h"
#include "engine/Surroundings.h"
#include "shell/Shell.h"

#include <QDateTime>
#include <QWidget>
#include <memory>

namespace app
{

/// The screen in the hall as the plan's window opens it: over the window, with the period, the
/// rooms and the texts that the window shows by then, until its user presses Escape.
class WindowHall
{
public:
    /// `surroundings` are the window's without its ties. Nothing is asked of `shell` before the
    /// screen is shown; it and `window` outlive this.
    WindowHall(shell::Shell& shell, engine::Surroundings surroundings, QWidget* window);
    /// Waits for a reading under way.
    ~WindowHall();
    WindowHall(const WindowHall&) = delete; // its screen knows it
    WindowHall& operator=(const WindowHall&) = delete;

    void show();
    /// Takes the screen away where it is shown.
    void leave();
    /// What the clock says, on the day that it is for the program.
    [[nodiscard]] QDateTime now() const;
    /// Null until it is first shown.
    [[nodiscard]] HallDisplay* display() const { return m_display.get(); }

private:
    [[nodiscard]] std::unique_ptr<HallDisplay> makeDisplay();
    [[nodiscard]] HallReader makeReader() const;

    shell::Shell& m_shell;
    engine::Surroundings m_surroundings;
    QWidget* m_window;
    std::unique_ptr<HallDisplay> m_display;
};

} // namespace app
