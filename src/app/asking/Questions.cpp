#include "app/asking/Questions.h"

#include "answers/Words.h"
#include "app/asking/ClashesWindow.h"
#include "app/asking/FindWindow.h"
#include "app/asking/FreeRoomsWindow.h"
#include "app/asking/RoomUseWindow.h"
#include "app/asking/ShownDay.h"
#include "app/asking/WeekWindow.h"
#include "plan/ClassList.h"
#include "timetable/ReadTimes.h"

#include <QAction>
#include <QMenu>
#include <utility>

namespace app
{
namespace
{

using engine::Engine;

FreeRoomsWindow::Prefill shownNow(const form::PlanForm& form)
{
    FreeRoomsWindow::Prefill prefill;
    prefill.day = shownDay(form);
    prefill.date = shownDate(form);
    prefill.week = shownWeeks(form);
    return prefill;
}

/// When a slot of the shown day is; nothing where it has no time, and for the room as a whole.
std::optional<timetable::TimeSpan> spanOf(const context::DaySlots& slots, int slot)
{
    if (slot == 0) {
        return std::nullopt;
    }
    const auto& facts = slots.slot(slot);
    const auto start = facts ? timetable::readTime(facts->start) : std::nullopt;
    return start ? std::optional(timetable::TimeSpan{*start, {facts->minutes}}) : std::nullopt;
}

} // namespace

Questions::Questions(shell::Shell& shell, AnswerDesk::Forward forward, QWidget* window,
                     std::function<void(const QString&)> tell, FileOpener open)
    : m_shell(shell), m_forward(std::move(forward)), m_window(window), m_tell(std::move(tell)),
      m_open(std::move(open)), m_desk(shell, m_forward), m_menu(new QMenu(window))
{
    m_menu->setObjectName(QStringLiteral("QuestionMenu"));
    add(QStringLiteral("Salle &libre…"), QStringLiteral("AskFreeRooms"),
        QKeySequence(Qt::CTRL | Qt::Key_L), &Questions::askFreeRooms);
    add(QStringLiteral("&Enseignant, classe, salle…"), QStringLiteral("Find"),
        QKeySequence(Qt::CTRL | Qt::Key_F), &Questions::find);
    add(QStringLiteral("&Semaine de…"), QStringLiteral("AskWeek"),
        QKeySequence(Qt::CTRL | Qt::Key_W), &Questions::askWeek);
    add(QStringLiteral("&Toutes les salles de la semaine"), QStringLiteral("AskOverview"),
        QKeySequence(Qt::CTRL | Qt::SHIFT | Qt::Key_W), &Questions::askOverview);
    m_menu->addSeparator();
    add(QStringLiteral("&Conflits…"), QStringLiteral("AskClashes"), {}, &Questions::askClashes);
    add(QStringLiteral("&Occupation…"), QStringLiteral("AskRoomUse"), {}, &Questions::askRoomUse);
}

QAction* Questions::add(const QString& text, const QString& name, const QKeySequence& key,
                        void (Questions::*ask)())
{
    auto* action = new QAction(text, m_window);
    action->setObjectName(name);
    action->setShortcut(key);
    action->setShortcutContext(Qt::ApplicationShortcut); // also from the other windows
    connect(action, &QAction::triggered, this, ask);
    m_window->addAction(action); // the key works while the menu is closed
    m_menu->addAction(action);
    return action;
}

void Questions::tieTo(PlanView* view, MenuEnd menuEnd)
{
    m_view = view;
    m_menuEnd = std::move(menuEnd);
    view->setAsking({[this](const QString& room) { openWeekOfRoom(room); },
                     [this](const QString& room) { weeks().presentRoomDay(room); },
                     [this](const PlanView::Spot& spot, QPoint point) { showMenu(spot, point); }});
}

FreeRoomsWindow& Questions::freeRooms()
{
    if (m_freeRooms == nullptr) {
        m_freeRooms = new FreeRoomsWindow(m_desk, ties(), m_window);
    }
    return *m_freeRooms;
}

void Questions::askFreeRooms()
{
    freeRooms().presentFor(shownNow(m_shell.form()));
}

void Questions::find()
{
    if (m_find == nullptr) {
        m_find = new FindWindow(m_desk, ties(), m_window);
    }
    m_find->presentAnew();
}

WeekWindow& Questions::weeks()
{
    if (m_weeks == nullptr) {
        m_weeks = new WeekWindow(m_desk, ties(), m_window);
    }
    return *m_weeks;
}

void Questions::askWeek()
{
    weeks().presentRoom(m_view->roomInFocus());
}

void Questions::askOverview()
{
    weeks().presentFor(std::nullopt);
}

void Questions::openWeekOfRoom(const QString& room)
{
    weeks().presentRoom(room);
}

void Questions::openWeekOf(const answers::Subject& subject)
{
    weeks().presentFor(subject);
}

void Questions::askClashes()
{
    if (m_clashes == nullptr) {
        m_clashes = new ClashesWindow(m_desk, ties(), m_window);
    }
    m_clashes->present();
}

void Questions::askRoomUse()
{
    if (m_roomUse == nullptr) {
        m_roomUse = new RoomUseWindow(m_desk, ties(), m_window);
    }
    m_roomUse->present();
}

AnswerWindow::Ties Questions::ties()
{
    return {[this](const shell::Destination& destination) { go(destination); },
            [this](const answers::Subject& subject) { openWeekOf(subject); }, m_open};
}

void Questions::askFreeRoomAt(const PlanView::Spot& spot)
{
    FreeRoomsWindow::Prefill prefill = shownNow(m_shell.form());
    prefill.span = spanOf(m_shell.engine().state().slots, spot.slot);
    freeRooms().presentFor(prefill);
}

void Questions::showMenu(const PlanView::Spot& spot, QPoint screenPoint)
{
    auto* menu = new QMenu(m_window);
    menu->setObjectName(QStringLiteral("PlanMenu"));
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto span = spanOf(m_shell.engine().state().slots, spot.slot);
    const QString when = span
                             ? QStringLiteral(", %1 %2").arg(m_shell.form().CbJour.text().toLower(),
                                                             answers::spanWords(*span))
                             : QString();
    connect(menu->addAction(QStringLiteral("Salle &libre%1…").arg(when)), &QAction::triggered, this,
            [this, spot] { askFreeRoomAt(spot); });
    addWeeksOf(*menu, spot);
    m_menuEnd(*menu, spot);
    menu->popup(screenPoint);
}

/// The weeks of the room, and of the classes and teachers of a box.
void Questions::addWeeksOf(QMenu& menu, const PlanView::Spot& spot)
{
    const auto add = [&](const QString& text, auto act) {
        QString shown = text;
        connect(menu.addAction(shown.replace(u'&', QStringLiteral("&&"))), &QAction::triggered,
                this, act);
    };
    add(QStringLiteral("Semaine de la salle %1").arg(spot.room),
        [this, room = spot.room] { openWeekOfRoom(room); });
    if (spot.box == nullptr) {
        return;
    }
    const auto addNamed = [&](const QString& text, const QString& name, auto named) {
        add(text, [this, name, named] {
            m_desk.ask([this, name, named] {
                const shell::Inquiry* inquiry = m_desk.inquiry();
                const auto subject =
                    inquiry == nullptr ? std::nullopt : named(inquiry->occupancy(), name);
                if (subject) {
                    openWeekOf(*subject);
                }
            });
        });
    };
    constexpr qsizetype mostClasses = 5;
    for (const QString& name : plan::classWords(spot.box->cell.CellClassList).mid(0, mostClasses)) {
        addNamed(QStringLiteral("Semaine de la classe %1").arg(name), name, answers::classNamed);
    }
    for (const QString& name : spot.box->cell.CellTeacher.split(u'/', Qt::SkipEmptyParts)) {
        addNamed(QStringLiteral("Semaine de %1").arg(name.trimmed()), name.trimmed(),
                 answers::teacherNamed);
    }
}

void Questions::go(const shell::Destination& destination)
{
    m_forward([this, destination] {
        const Engine::RoomLine line = shell::travel(m_shell, destination);
        m_view->frame(destination.room, destination.slot);
        if (line == Engine::RoomLine::None) {
            m_tell(QStringLiteral("La salle « %1 » n’a pas de ligne sur le plan")
                       .arg(destination.room));
        } else if (line == Engine::RoomLine::Greyed) {
            m_tell(QStringLiteral("La salle « %1 » est en tête de page, grisée : ses séances ne "
                                  "sont pas dessinées")
                       .arg(destination.room));
        } else {
            m_tell({});
        }
    });
    m_window->activateWindow();
    m_view->setFocus();
}

} // namespace app
