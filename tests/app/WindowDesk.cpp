#include "app/WindowDesk.h"

#include <QTimer>

namespace test
{
namespace
{

/// A window that was left while no event loop ran leaves its wish to end behind, which the next
/// loop would obey: a message box would close as soon as it opens. Only a loop of the application
/// itself takes the wish away.
void forgetFormerEnd()
{
    QTimer::singleShot(0, QCoreApplication::instance(), [] { QCoreApplication::exit(); });
    static_cast<void>(QApplication::exec());
}

} // namespace

void TheWindow::create()
{
    forgetFormerEnd();
    engine::Surroundings environment;
    environment.applicationFolder = setup.applicationFolder();
    environment.today = [] { return QDate(2025, 3, 19); };
    environment.seed = 1;
    m_window = std::make_unique<app::PlClasse>(shell::Settings::fromFile(setup.settingsFile()),
                                               std::move(environment), [this](const QString& path) {
                                                   opened << path;
                                                   return true;
                                               });
}

void TheWindow::open(QSize size)
{
    create();
    ASSERT_TRUE(m_window->load());
    m_window->resize(size);
    m_window->show();
    m_window->activate();
    ASSERT_TRUE(until(
        [this] { return m_window->isActiveWindow() && m_window->windowHandle()->isExposed(); }));
}

void TheWindow::expectTexts(const QString& room, const QMap<int, QString>& texts)
{
    static_cast<void>(until([&] { return boxTexts(plan(), room) == texts; }));
    EXPECT_EQ(boxTexts(plan(), room), texts) << room.toStdString();
}

void TheWindow::expectRooms(const QStringList& rooms)
{
    static_cast<void>(until([&] { return shownRooms(plan()) == rooms; }));
    EXPECT_EQ(shownRooms(plan()), rooms);
}

paint::OverlayPlaces TheWindow::overlays(std::size_t row, std::size_t box)
{
    const plan::PlanRow& planRow = m_window->shell().engine().content().rows.at(row);
    return paint::overlayPlaces(form(), view()->target(), planRow.index, planRow.boxes.at(box));
}

QPoint TheWindow::counterOnScreen(std::size_t row, std::size_t box)
{
    return view()->viewport()->mapToGlobal(
        view()->toViewport(overlays(row, box).Label2.center()).toPoint());
}

} // namespace test
