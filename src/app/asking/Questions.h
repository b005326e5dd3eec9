#pragma once

#include "app/PlanView.h"
#include "app/asking/AnswerWindow.h"
#include "shell/Destination.h"

#include <QObject>

class QAction;
class QMenu;

namespace app
{

class ClashesWindow;
class FindWindow;
class FreeRoomsWindow;
class RoomUseWindow;
class WeekWindow;

/// The questions that the window can be asked: a menu with their keys, the menu of a place of the
/// plan, and the windows that answer. A window is made when it is first asked for, and lives as
/// long as the plan's.
class Questions : public QObject
{
public:
    /// `window` is the plan's; `tell` shows a sentence in its status bar; `open` opens files that
    /// were saved.
    Questions(shell::Shell& shell, AnswerDesk::Forward forward, QWidget* window,
              std::function<void(const QString& sentence)> tell, FileOpener open);

    /// All questions, each with its key.
    [[nodiscard]] QMenu* menu() { return m_menu; }
    /// What else the menu of a place of the plan holds.
    using MenuEnd = std::function<void(QMenu& menu, const PlanView::Spot& spot)>;
    /// Ties the questions to the plan: what is looked for is framed there, and asked about there.
    void tieTo(PlanView* view, MenuEnd menuEnd);

private:
    QAction* add(const QString& text, const QString& name, const QKeySequence& key,
                 void (Questions::*ask)());
    [[nodiscard]] FreeRoomsWindow& freeRooms();
    void askFreeRooms();
    void find();
    /// Of the room that is framed or was asked about last.
    void askWeek();
    void askOverview();
    void askClashes();
    void askRoomUse();
    [[nodiscard]] WeekWindow& weeks();
    void openWeekOfRoom(const QString& room);
    void askFreeRoomAt(const PlanView::Spot& spot);
    void showMenu(const PlanView::Spot& spot, QPoint screenPoint);
    void addWeeksOf(QMenu& menu, const PlanView::Spot& spot);
    void openWeekOf(const answers::Subject& subject);
    [[nodiscard]] AnswerWindow::Ties ties();
    void go(const shell::Destination& destination);

    shell::Shell& m_shell;
    AnswerDesk::Forward m_forward;
    QWidget* m_window;
    std::function<void(const QString&)> m_tell;
    FileOpener m_open;
    AnswerDesk m_desk;
    QMenu* m_menu;
    PlanView* m_view = nullptr;
    MenuEnd m_menuEnd;
    // Null until they are asked for.
    FreeRoomsWindow* m_freeRooms = nullptr;
    FindWindow* m_find = nullptr;
    WeekWindow* m_weeks = nullptr;
    ClashesWindow* m_clashes = nullptr;
    RoomUseWindow* m_roomUse = nullptr;
};

} // namespace app
