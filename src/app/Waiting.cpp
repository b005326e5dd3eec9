#include "app/Waiting.h"

#include <QScopeGuard>
#include <QScopedValueRollback>

namespace app
{

Waiting::Action::Action(Waiting& waiting, const Sign& sign)
    : m_waiting(waiting), m_isOutermost(waiting.m_sign == nullptr)
{
    if (m_isOutermost) {
        m_waiting.m_sign = &sign;
        m_waiting.beginAnew();
    }
}

Waiting::Action::~Action()
{
    if (m_isOutermost) {
        m_waiting.hide();
        m_waiting.m_sign = nullptr;
    }
}

void Waiting::run(const std::function<void()>& call)
{
    if (m_isServing) {
        // Out of an event that is served meanwhile: the connection carries one call at a time.
        m_background.wait();
    }
    if (m_sign == nullptr || m_isServing) {
        call();
        return;
    }
    m_background.start(call);
    const auto ended = qScopeGuard([this] { m_background.wait(); });
    if (!m_background.waitUntil(due())) {
        showWhenDue();
        serveEvents();
    }
    m_background.finish();
}

/// Until the call has ended.
void Waiting::serveEvents()
{
    const QScopedValueRollback<bool> serving(m_isServing, true);
    QEventLoop loop;
    const auto leave = [&loop] {
        QMetaObject::invokeMethod(&loop, &QEventLoop::quit, Qt::QueuedConnection);
    };
    if (m_background.whenEnded(leave)) {
        loop.exec(m_sign->served);
        m_background.wait(); // where the program is ending, the loop does not last
    }
}

void Waiting::showWhenDue()
{
    if (m_sign != nullptr && !m_isShown && std::chrono::steady_clock::now() >= due()) {
        m_isShown = true;
        m_sign->show();
    }
}

void Waiting::beginAnew()
{
    hide();
    m_began = std::chrono::steady_clock::now();
}

void Waiting::hide()
{
    if (m_isShown) {
        m_isShown = false;
        m_sign->hide();
    }
}

std::chrono::steady_clock::time_point Waiting::due() const
{
    return m_began + m_sign->after;
}

} // namespace app
