#include "ScreenPlan.h"

#include "app/PlanView.h"
#include "support/ChildProgram.h"
#include "support/Timetable.h"
#include "support/XSession.h"

#include <QApplication>
#include <QTimer>
#include <stdexcept>

namespace test
{
namespace
{

void fill(TestDatabase& database)
{
    Timetable timetable(database);
    timetable.row(
        "etablissement",
        {{"Université", "Université de Kalo"}, {"Nom", "Faculté des Sciences"}, {"Année", 2025}});
    timetable.row("tranche", {{"ident", 1},
                              {"Tranche", "Printemps"},
                              {"DateDebut", QDate(2025, 2, 3)},
                              {"DateFin", QDate(2025, 6, 6)}});
    timetable.row("seances", {{"Seance", "Lundi1"}, {"Horaire1", "8h30"}, {"Horaire2", "10h00"}});
    for (const char* room : {"A0", "A1", "A2", "A3"}) { // the first one stands above the plan
        timetable.row("salle", {{"Zone", 1}, {"Nom", room}, {"places", 40}});
    }
    const auto holds = [&](const char* room, const char* className) {
        timetable.row("emplois", {{"Salle", room},
                                  {"Classe", className},
                                  {"Seance", "Lundi1"},
                                  {"Tranche", 1},
                                  {"newnature", "00"},
                                  {"Debut", "8h30"},
                                  {"Durée", "90"}});
    };
    holds("A1", "L1");
    holds("A1", "L2");
    holds("A2", "L'3");
    holds("A3", "L4");
    timetable.load();
}

engine::Surroundings environmentIn(const ProgramSetup& setup)
{
    engine::Surroundings found;
    found.applicationFolder = setup.applicationFolder();
    found.today = [] { return QDate(2025, 3, 17); };
    return found;
}

} // namespace

void awaitThat(const std::function<bool()>& isSo, const char* what)
{
    constexpr int longestMilliseconds = 30000;
    QTimer limit; // also the event that ends the last wait
    limit.setSingleShot(true);
    limit.start(longestMilliseconds);
    while (!isSo()) {
        if (!limit.isActive()) {
            throw std::runtime_error(std::string("waited in vain: ") + what);
        }
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
}

ClickCounter::ClickCounter()
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool ClickCounter::eventFilter(QObject* watched, QEvent* event)
{
    if (watched->isWindowType() && event->type() == QEvent::MouseButtonRelease) {
        ++m_clicks;
    }
    return false;
}

ScreenPlan::ScreenPlan(TestDatabase& database) : m_setup(database)
{
    fill(database);
    m_window = std::make_unique<app::PlClasse>(shell::Settings::fromFile(m_setup.settingsFile()),
                                               environmentIn(m_setup));
    if (!m_window->load()) {
        throw std::runtime_error("the program does not start");
    }
    m_window->setGeometry(10, 40, 1100, 600);
    m_window->show();
    m_window->activate();
    m_window->activateWindow();
    awaitThat([this] { return m_window->isActiveWindow(); }, "the window's focus");
}

const plan::PlanBox& ScreenPlan::box(int marker)
{
    return *m_window->shell().engine().content().box(marker);
}

QPoint ScreenPlan::onScreen(int marker, Image image)
{
    auto* const view = static_cast<app::PlanView*>(
        m_window->findChild<QAbstractScrollArea*>(QStringLiteral("PlanView")));
    for (const plan::PlanRow& row : m_window->shell().engine().content().rows) {
        for (const plan::PlanBox& candidate : row.boxes) {
            if (candidate.marker != marker) {
                continue;
            }
            const paint::OverlayPlaces places = paint::overlayPlaces(
                m_window->shell().form(), view->target(), row.index, candidate);
            // The pictures overlap: the left one is surely hit near its left edge, the band beside
            // both of them and between the labels.
            const QRectF& band = places.ZAbs;
            const QPointF point = image == Image::YAbs ? places.YAbs.center()
                                  : image == Image::XAbs
                                      ? QPointF(places.XAbs.left() + 3, places.XAbs.center().y())
                                      : QPointF(band.left() + band.width() / 3, band.center().y());
            return view->viewport()->mapToGlobal(view->toViewport(point).toPoint());
        }
    }
    throw std::runtime_error("no such box");
}

void ScreenPlan::pointAt(int marker, Image image)
{
    const QPoint point = onScreen(marker, image);
    byHand(QStringLiteral("mousemove %1 %2").arg(point.x()).arg(point.y()));
}

void ScreenPlan::clickByHand(const QString& commands)
{
    const int before = m_counter.clicks();
    byHand(commands);
    awaitThat([&] { return m_counter.clicks() > before; }, "a click");
}

OtherProgram::OtherProgram()
{
    dieWithParent(m_process);
    m_process.start(QCoreApplication::applicationFilePath(), {QStringLiteral("--other-window")});
    while (!m_process.canReadLine()) {
        if (!m_process.waitForReadyRead()) {
            throw std::runtime_error("the other program does not start");
        }
    }
}

OtherProgram::~OtherProgram()
{
    m_process.kill();
    m_process.waitForFinished();
}

void OtherProgram::takeFocus()
{
    byHand(QStringLiteral("search --sync --onlyvisible --name autre windowactivate --sync"));
    awaitThat([] { return QApplication::activeWindow() == nullptr; }, "the loss of the focus");
}

} // namespace test
