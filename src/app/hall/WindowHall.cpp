#include "app/hall/WindowHall.h"

#include "app/ErrorReport.h"

#include <utility>

namespace app
{
namespace
{

/// The clock of the surroundings' day.
QDateTime nowOf(const engine::Surroundings& surroundings)
{
    const QDate day = surroundings.today();
    const QTime time = QTime::currentTime();
    return surroundings.today() == day ? QDateTime(day, time) : nowOf(surroundings); // midnight
}

/// In a box over the window, which goes on.
void tell(QWidget* window, const std::exception_ptr& fault)
{
    try {
        std::rethrow_exception(fault);
    } catch (const shell::UsageError& error) {
        showFault(window, QString::fromUtf8(error.what()), {});
    } catch (...) {
        reportRunTimeError(window, runtime::faultInFlight());
    }
}

} // namespace

WindowHall::WindowHall(shell::Shell& shell, engine::Surroundings surroundings, QWidget* window)
    : m_shell(shell), m_surroundings(std::move(surroundings)), m_window(window)
{
}

WindowHall::~WindowHall() = default;

void WindowHall::show()
{
    // One that still waits for the database would be waited for: it shows what it was made for.
    if (!m_display || !m_display->isReading()) {
        m_display = makeDisplay();
    }
    m_display->open();
}

void WindowHall::leave()
{
    if (m_display) {
        m_display->leave();
    }
}

QDateTime WindowHall::now() const
{
    return nowOf(m_surroundings);
}

std::unique_ptr<HallDisplay> WindowHall::makeDisplay()
{
    HallDisplay::Ties ties;
    ties.now = [this] { return now(); };
    ties.left = [this] { m_window->activateWindow(); };
    ties.failed = [this](const std::exception_ptr& fault) { tell(m_window, fault); };
    return std::make_unique<HallDisplay>(makeReader(), shell::DisplayRequest(), std::move(ties));
}

HallReader WindowHall::makeReader() const
{
    const auto open = [this] {
        return std::make_unique<shell::Shell>(m_shell.settingsAgain(), m_surroundings);
    };
    return {open, hallChoicesOf(m_shell.form())};
}

} // namespace app
