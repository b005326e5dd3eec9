#include "app/PlClasse.h"

#include "app/AbsenceMenu.h"
#include "app/EmptyPlanNote.h"
#include "app/ErrorReport.h"
#include "app/ExitCode.h"
#include "app/FocusGroups.h"
#include "app/HeaderBand.h"
#include "app/HelpWindow.h"
#include "app/OptionPanels.h"
#include "app/PageFooter.h"
#include "app/PaletteChoice.h"
#include "app/PlainTexts.h"
#include "app/PlanNotices.h"
#include "app/PlanView.h"
#include "app/StatusNews.h"
#include "app/StatusWords.h"
#include "app/WheelGuard.h"
#include "app/WindowKeys.h"
#include "app/asking/Questions.h"
#include "app/hall/WindowHall.h"
#include "shell/Player.h"

#include <QAction>
#include <QApplication>
#include <QCloseEvent>
#include <QKeyEvent>
#include <QLabel>
#include <QMessageBox>
#include <QStatusBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <cstdlib>
#include <utility>

namespace app
{
namespace
{

// Size of the window when the user takes it out of full size.
constexpr QSize kFirstSize(1280, 720);
// After this time a start and an action show that they wait.
constexpr std::chrono::milliseconds kStartPatience{500};
constexpr std::chrono::milliseconds kActionPatience{300};
constexpr int kSentenceTime = 8000; // milliseconds that a sentence stays in the status bar

/// The dialogs, with no sign of waiting over them.
PrintDialogs pausing(const PrintDialogs& dialogs, Waiting& waiting)
{
    PrintDialogs paused;
    paused.printIncomplete = [dialogs, &waiting](const QString& whatIsMissing) {
        const Waiting::Pause pause(waiting);
        return dialogs.printIncomplete(whatIsMissing);
    };
    paused.choosePrinter = [dialogs, &waiting](QPrinter& printer, int sheets) {
        const Waiting::Pause pause(waiting);
        return dialogs.choosePrinter(printer, sheets);
    };
    paused.preview = [dialogs, &waiting](QPrinter& printer,
                                         const std::function<void(QPrinter&)>& paint) {
        const Waiting::Pause pause(waiting);
        dialogs.preview(printer, paint);
    };
    return paused;
}

/// Ends the program where it stands. While a driver is connecting nothing can call it back, and
/// nothing may be taken from it; nor is there anything to be saved.
[[noreturn]] void leaveAtOnce(int code)
{
    std::_Exit(code);
}

} // namespace

PlClasse::PlClasse(shell::Settings settings, engine::Surroundings surroundings,
                   const FileOpener& open)
    : m_applicationFolder(surroundings.applicationFolder),
      m_hall(std::make_unique<WindowHall>(m_shell, surroundings, this)),
      m_startWindow([] { leaveAtOnce(kDone); }),
      m_shell(std::move(settings), tieToWindow(std::move(surroundings))),
      m_news(new StatusNews(statusBar(), open)),
      m_clicks(m_shell.engine(), *m_news,
               [this](const std::function<void()>& action) { forward(action); }),
      m_printing(m_shell.engine(), pausing(platformPrintDialogs(this), m_waiting),
                 [this](const QString& path) { m_news->tellSaved(path); }),
      m_mirror([this](const std::function<void()>& action) { forward(action); })
{
    setObjectName(QStringLiteral("PlClasse"));
    setWindowTitle(m_shell.form().caption);
    m_style.emplace(this);
    buildContent(open);
    buildStatusBar();
    addKeys();
}

PlClasse::~PlClasse()
{
    // While a widget goes, a screen reader may still be told of it: the plan must be there to ask.
    m_closed = true;
    m_hall.reset();
    const std::unique_ptr<QWidget> content(takeCentralWidget());
}

engine::Surroundings PlClasse::tieToWindow(engine::Surroundings surroundings)
{
    surroundings.processEvents = [this] { processEvents(); };
    surroundings.await = [this](const std::function<void()>& call) { m_waiting.run(call); };
    surroundings.showMessage = [this](const QString& title, const QString& text) {
        const Waiting::Pause pause(m_waiting);
        QMessageBox box(QMessageBox::NoIcon, title, text, QMessageBox::Ok, this);
        showPlainly(box);
        box.exec();
    };
    surroundings.openFile = [this](const QString& startFolder, const QString& filter) {
        const Waiting::Pause pause(m_waiting);
        return choosePalette(m_shell.engine(), this, startFolder, filter);
    };
    return surroundings;
}

void PlClasse::buildContent(const FileOpener& open)
{
    auto* content = new QWidget;
    auto* column = new QVBoxLayout(content);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(0);
    auto* help = new QAction(QStringLiteral("Aide"), this);
    help->setShortcut(Qt::Key_F1);
    help->setToolTip(QStringLiteral("Ouvrir le guide (F1)"));
    connect(help, &QAction::triggered, this, [this] { showHelp(); });
    m_questions = new Questions(
        m_shell, [this](const std::function<void()>& action) { forward(action); }, this,
        [this](const QString& sentence) { statusBar()->showMessage(sentence, kSentenceTime); },
        open);
    m_questions->setParent(this);
    column->addWidget(new HeaderBand(m_shell.engine(), m_mirror, help, m_questions->menu()));
    m_options = new OptionPanels(m_shell.engine(), m_mirror);
    column->addWidget(m_options);
    m_notices = new PlanNotices(m_shell.engine(), m_mirror,
                                [this](const std::function<void()>& action) { forward(action); });
    column->addWidget(m_notices);
    m_view = new PlanView(
        m_shell, [this](const std::function<void()>& action) { forward(action); },
        [this](int marker) { m_clicks.click(marker); });
    m_view->setClock([this] { return m_hall->now(); });
    m_absences = std::make_unique<AbsenceMenu>(
        m_shell.engine(), *m_view,
        [this](int marker, absences::VirtualKey key) { m_clicks.clickHolding(marker, key); });
    m_questions->tieTo(
        m_view, [this](QMenu& menu, const PlanView::Spot& spot) { m_absences->addTo(menu, spot); });
    new EmptyPlanNote(m_shell.engine(), m_mirror, m_view->viewport());
    column->addWidget(m_view, 1);
    setCentralWidget(content);
}

void PlClasse::buildStatusBar()
{
    const auto add = [this](const QString& name, const QString& text) {
        auto* label = plainLabel(text);
        label->setObjectName(name);
        statusBar()->addPermanentWidget(label);
        return label;
    };
    form::PlanForm& form = m_shell.form();
    const auto follow = [this](const QString& name, QString (*text)(shell::Shell & shell)) {
        auto* label = plainLabel();
        label->setObjectName(name);
        statusBar()->addWidget(label);
        m_mirror.follow([this, label, text] { label->setText(text(m_shell)); });
        return label;
    };
    follow(QStringLiteral("MarkedDay"), markedDayWords)
        ->setToolTip(QStringLiteral("Date que marquent Maj + clic et Ctrl + clic sur une case"));
    auto* weekOfDate = follow(QStringLiteral("WeekShown"), weekShownWords);
    weekOfDate->setToolTip(QStringLiteral("Semaine de la date affichée, selon « SemaineA »"));
    statusBar()->addWidget(
        new PageFooter(m_shell.engine(), m_mirror,
                       [this](const std::function<void()>& action) { forward(action); }));
    add(QStringLiteral("PeriodCaption"), QStringLiteral("Période n°"));
    m_mirror.bind(add(QStringLiteral("Label11"), QString()), form.Label11);
    auto* week = add(QStringLiteral("Semn"), QString());
    m_mirror.follow([week, &form] {
        week->setVisible(form.OpExam().isSelected());
        week->setText(QStringLiteral("Semaine d’examen ") + form.Semn.caption);
    });
    m_mirror.bindVisible(add(QStringLiteral("ImgAccess"), QStringLiteral("Base locale (ODBC)")),
                         form.ImgAccess.visible);
    m_mirror.bindVisible(add(QStringLiteral("ImgSql"), QStringLiteral("Serveur MySQL")),
                         form.ImgSql.visible);
    auto* font = new QToolButton;
    font->setObjectName(QStringLiteral("Label20"));
    font->setText(form.Label20.caption);
    font->setToolTip(QStringLiteral("Donner la police d’impression à toute la fenêtre"));
    font->setAutoRaise(true);
    connect(font, &QToolButton::clicked, this,
            [this] { forward([this] { m_shell.Label20_Click(); }); });
    statusBar()->addPermanentWidget(font);
    m_mirror.bind(add(QStringLiteral("Lab_Ver"), QString()), form.Lab_Ver);
}

void PlClasse::addKeys()
{
    const auto ahead = [this](const std::function<void()>& action) { forward(action); };
    new WindowKeys(*this, m_shell.form(), ahead);
    std::vector<QWidget*> groups{findChild<QWidget*>(QStringLiteral("HeaderBand"))};
    const std::vector<QWidget*> options = m_options->groups();
    groups.insert(groups.end(), options.begin(), options.end());
    groups.push_back(findChild<QWidget*>(QStringLiteral("FaultBar")));
    groups.push_back(findChild<QWidget*>(QStringLiteral("StaleBar")));
    groups.push_back(m_view);
    groups.push_back(statusBar());
    new FocusGroups(*this, std::move(groups));
    new WheelGuard(this);
}

int PlClasse::run(const shell::CommandLine& line)
{
    m_setup.emplace(m_applicationFolder, line.settingsFile);
    if (!load()) {
        return kFailed;
    }
    m_setup.reset();
    place();
    show();
    m_isStarting = true;
    activate();
    play(line);
    m_isStarting = false;
    if (std::exchange(m_leavesOnceStarted, false)) {
        leave();
    }
    // The first redraws serve events, too: by now the user may have closed the window.
    const int code = hasEnded() ? kDone : QApplication::exec();
    return m_failed ? kFailed : code;
}

/// As it lay last time; at first it fills the screen.
void PlClasse::place()
{
    resize(kFirstSize);
    m_placementAtStart =
        WindowPlacement::fromText(m_shell.windowPlacement()).value_or(WindowPlacement());
    m_placementAtStart->apply(*this);
}

void PlClasse::keepPlacement()
{
    const WindowPlacement now = WindowPlacement::of(*this);
    if (m_placementAtStart && !now.looksLike(*m_placementAtStart) && !isMinimized()) {
        m_shell.saveWindowPlacement(now.toText());
    }
}

bool PlClasse::load()
{
    forward([this] {
        m_shell.Form_Load();
        m_view->fit();
    });
    return !m_failed;
}

void PlClasse::activate()
{
    forward([this] {
        m_view->fit();
        m_shell.Form_Activate();
    });
}

void PlClasse::play(const shell::CommandLine& line)
{
    forward([&] { shell::play(m_shell, line); });
}

void PlClasse::forward(const std::function<void()>& action)
{
    if (hasEnded()) {
        return;
    }
    if (m_waiting.isServing()) {
        m_putOff.push_back(action);
        return;
    }
    try {
        run(action);
    } catch (const shell::UsageError&) {
        throw; // for whoever played the command line
    } catch (...) {
        fail(runtime::faultInFlight());
    }
    if (!hasEnded()) {
        syncWidgets();
        m_view->showAll();
    }
    runPutOff();
}

void PlClasse::run(const std::function<void()>& action)
{
    const Waiting::Action waiting(m_waiting, isVisible() ? m_windowSign : m_startSign);
    action();
}

void PlClasse::runPutOff()
{
    const std::vector<std::function<void()>> actions = std::exchange(m_putOff, {});
    for (const std::function<void()>& action : actions) {
        forward(action);
    }
}

Waiting::Sign PlClasse::startSign()
{
    return {kStartPatience, [this] { m_startWindow.showConnecting(m_shell.databaseName()); },
            [this] { m_startWindow.hide(); }, QEventLoop::AllEvents};
}

Waiting::Sign PlClasse::windowSign()
{
    Waiting::Sign sign;
    sign.after = kActionPatience;
    sign.show = [this] {
        QGuiApplication::setOverrideCursor(Qt::WaitCursor);
        statusBar()->showMessage(QStringLiteral("Lecture…"));
        m_view->setOutOfDate(true);
    };
    sign.hide = [this] {
        QGuiApplication::restoreOverrideCursor();
        statusBar()->clearMessage();
        m_view->setOutOfDate(false);
    };
    return sign;
}

void PlClasse::fail(const runtime::RunTimeError& error)
{
    if (hasEnded()) {
        return; // an action that was still under way
    }
    m_failed = true;
    const Waiting::Pause pause(m_waiting); // an action around this one may be waiting
    m_shell.engine().abandonRefresh();
    reportRunTimeError(this, error, m_setup ? m_setup->wayOutOf(error) : std::nullopt);
    QCoreApplication::exit(kFailed);
}

void PlClasse::syncWidgets()
{
    m_mirror.sync();
    serveFocusRequest();
    m_style->setFontName(m_shell.form().controlFontName);
}

void PlClasse::serveFocusRequest()
{
    const int requests = m_shell.form().colorerFocusRequests;
    if (requests != m_focusRequests) {
        m_focusRequests = requests;
        m_options->focusColorer();
    }
}

void PlClasse::processEvents()
{
    m_view->showProgress();
    m_waiting.showWhenDue();
    // What the user clicks in the first plan is meant for the one that the command line asks for.
    QCoreApplication::processEvents(m_isStarting ? QEventLoop::ExcludeUserInputEvents
                                                 : QEventLoop::AllEvents);
}

void PlClasse::showHelp()
{
    if (m_help == nullptr) {
        m_help = new HelpWindow(m_applicationFolder + QStringLiteral("/docs/guide.md"), this);
    }
    m_help->show();
    m_help->raise();
    m_help->activateWindow();
}

void PlClasse::keyPressEvent(QKeyEvent* event)
{
    if (event->key() == Qt::Key_F11) {
        forward([this] { m_hall->show(); });
        return;
    }
    if (event->key() == Qt::Key_Escape) { // what is left of it: back from the options to the plan
        m_view->setFocus(Qt::ShortcutFocusReason);
        return;
    }
    if (event->key() == Qt::Key_F2) {
        forward([this] { m_shell.Form_KeyDown(shell::Shell::kKeyF2); });
        return;
    }
    if (event->key() == Qt::Key_F5) {
        m_notices->refresh();
        return;
    }
    QMainWindow::keyPressEvent(event);
}

void PlClasse::resizeEvent(QResizeEvent* event)
{
    QMainWindow::resizeEvent(event);
    m_shell.Form_Resize();
    serveFocusRequest(); // now: later it would take the focus from what the user has turned to
}

void PlClasse::leave()
{
    if (!isVisible()) {
        leaveAtOnce(m_failed ? kFailed : kDone);
    }
    if (m_isStarting && !m_failed) { // a fault's message is to go at once
        m_leavesOnceStarted = true;
        return;
    }
    close();
    QCoreApplication::exit(m_failed ? kFailed : kDone); // of a dialog, too, before all is started
}

void PlClasse::saveOptions()
{
    if (!hasEnded()) {
        runtime::skipOnError([this] { m_shell.saveOptions(); });
    }
}

void PlClasse::closeEvent(QCloseEvent* event)
{
    if (m_waiting.isServing()) {
        m_putOff.push_back([this] { close(); });
        event->ignore();
        return;
    }
    if (!hasEnded()) {
        try {
            m_shell.Form_Unload();
        } catch (...) { // settings that cannot be saved; the window closes all the same
            fail(runtime::faultInFlight());
        }
        keepPlacement();
        m_closed = true;
        m_hall->leave();
    }
    QMainWindow::closeEvent(event);
}

} // namespace app
