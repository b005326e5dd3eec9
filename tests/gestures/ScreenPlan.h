#pragma once

#include "app/PlClasse.h"
#include "paint/Overlays.h"
#include "support/ProgramSetup.h"

#include <QObject>
#include <QProcess>
#include <functional>
#include <memory>

namespace test
{

/// Lets events run until it is so. Throws std::runtime_error when it does not come to be.
void awaitThat(const std::function<bool()>& isSo, const char* what);

/// Counts the mouse buttons that have been let go over a window of this program.
class ClickCounter : public QObject
{
public:
    ClickCounter();
    bool eventFilter(QObject* watched, QEvent* event) override;

    [[nodiscard]] int clicks() const { return m_clicks; }

private:
    int m_clicks = 0;
};

/// The program's window on the screen, showing a plan of Monday, 17 March 2025: from 8h30 on the
/// classes L1 and L2 hold room A1 together, "L'3" holds room A2, and L4 holds room A3.
class ScreenPlan
{
public:
    /// Which of the three images of a box.
    enum class Image { XAbs, YAbs, ZAbs };

    explicit ScreenPlan(TestDatabase& database);

    [[nodiscard]] app::PlClasse& window() { return *m_window; }
    [[nodiscard]] const plan::PlanBox& box(int marker);

    /// Moves the mouse to the image.
    void pointAt(int marker, Image image);
    /// Plays the hands, who end with a click, and waits until the window has dealt with it.
    void clickByHand(const QString& commands);

private:
    [[nodiscard]] QPoint onScreen(int marker, Image image);

    ProgramSetup m_setup;
    std::unique_ptr<app::PlClasse> m_window;
    ClickCounter m_counter;
};

/// Another program's window, which takes the focus.
class OtherProgram
{
public:
    OtherProgram();
    ~OtherProgram();
    OtherProgram(const OtherProgram&) = delete;
    OtherProgram& operator=(const OtherProgram&) = delete;

    /// Gives it the focus and waits until the tested window has lost it.
    static void takeFocus();

private:
    QProcess m_process;
};

} // namespace test
