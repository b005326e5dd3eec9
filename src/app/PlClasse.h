#pragma once

#include "app/FormMirror.h"
#include "app/MarkerClicks.h"
#include "app/Printing.h"
#include "app/SavedLink.h"
#include "app/SetupOffer.h"
#include "app/StartWindow.h"
#include "app/Waiting.h"
#include "app/WindowPlacement.h"
#include "app/WindowStyle.h"
#include "shell/CommandLine.h"
#include "shell/Shell.h"

#include <QMainWindow>
#include <functional>
#include <memory>
#include <optional>
#include <vector>

namespace app
{

class AbsenceMenu;
class HelpWindow;
class OptionPanels;
class PlanNotices;
class PlanView;
class Questions;
class StatusNews;
class WindowHall;

/// The one window of the program, "Planning des Classes": mirrors the form's controls and passes
/// the user's actions on to them.
class PlClasse : public QMainWindow
{
public:
    /// `applicationFolder` holds `app_data` and `Styles`. `open` opens files that were saved.
    PlClasse(shell::Settings settings, engine::Surroundings surroundings,
             const FileOpener& open = desktopOpener());
    ~PlClasse() override;

    /// The whole life of the window: starts up, shows, plays the choices of the command line and
    /// serves the user until the window is closed. Returns the program's exit code.
    /// Error: shell::UsageError.
    [[nodiscard]] int run(const shell::CommandLine& line);
    /// Starts the program up. False after a fault, which has been shown; nothing is saved then.
    [[nodiscard]] bool load();
    /// Draws the plan for the first time, once the window is shown.
    void activate();
    /// Plays the choices of the command line. Error: shell::UsageError.
    void play(const shell::CommandLine& line);
    /// Runs an action of the user; an untrapped fault in it ends the program with exit code 1.
    /// Once the window is closed nothing runs any more, and what an action meets that was still
    /// under way, such as the closed database, is no fault. What comes while another action waits
    /// for the database runs after it.
    void forward(const std::function<void()>& action);

    /// The system wants the program to end: does what closing the window does, and ends whatever
    /// dialog is open. Before the window is shown there is nothing to be saved; while the choices
    /// of the command line are being played it waits for these.
    void leave();

    /// The system is about to end the session, which may still be called off: saves what closing
    /// the window saves. What cannot be saved is told when the window closes.
    void saveOptions();

    /// Tells of a fault and ends the program with exit code 1, without saving anything. Once the
    /// window is closed nothing is told.
    void fail(const runtime::RunTimeError& error);

    [[nodiscard]] shell::Shell& shell() { return m_shell; }
    /// Whether a fault has ended the program.
    [[nodiscard]] bool failed() const { return m_failed; }

protected:
    void closeEvent(QCloseEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;

private:
    [[nodiscard]] engine::Surroundings tieToWindow(engine::Surroundings surroundings);
    void buildContent(const FileOpener& open);
    void buildStatusBar();
    void addKeys();
    void syncWidgets();
    void serveFocusRequest();
    void processEvents();
    [[nodiscard]] Waiting::Sign startSign();
    [[nodiscard]] Waiting::Sign windowSign();
    void run(const std::function<void()>& action);
    void runPutOff();
    [[nodiscard]] bool hasEnded() const { return m_failed || m_closed; }
    void place();
    void keepPlacement();
    void showHelp();

    QString m_applicationFolder;       ///< holds the program and its guide
    std::optional<SetupOffer> m_setup; ///< only while it starts up
    std::unique_ptr<WindowHall> m_hall;
    Waiting m_waiting;
    StartWindow m_startWindow;
    const Waiting::Sign m_startSign = startSign();
    const Waiting::Sign m_windowSign = windowSign();
    std::vector<std::function<void()>> m_putOff; ///< what came while an action waited
    shell::Shell m_shell;
    StatusNews* m_news = nullptr;
    MarkerClicks m_clicks;
    Printing m_printing;
    FormMirror m_mirror;
    OptionPanels* m_options = nullptr;
    PlanNotices* m_notices = nullptr;
    PlanView* m_view = nullptr;
    std::unique_ptr<AbsenceMenu> m_absences;
    Questions* m_questions = nullptr;
    HelpWindow* m_help = nullptr; ///< null until it is asked for
    int m_focusRequests = 0;
    std::optional<WindowStyle> m_style;
    std::optional<WindowPlacement> m_placementAtStart; ///< nothing until `run` has placed it
    bool m_isStarting = false; ///< the choices of the command line are still being played
    bool m_leavesOnceStarted = false;
    bool m_failed = false;
    bool m_closed = false;
};

} // namespace app
