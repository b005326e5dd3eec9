#include "app/BackgroundCall.h"

#include <utility>

namespace app
{

BackgroundCall::BackgroundCall() : m_thread([this] { work(); }) {}

BackgroundCall::~BackgroundCall()
{
    {
        const std::lock_guard<std::mutex> locked(m_lock);
        m_isOver = true;
    }
    m_changed.notify_all();
    m_thread.join();
}

void BackgroundCall::start(const std::function<void()>& call)
{
    {
        const std::lock_guard<std::mutex> locked(m_lock);
        m_call = &call;
    }
    m_changed.notify_all();
}

void BackgroundCall::wait()
{
    std::unique_lock<std::mutex> locked(m_lock);
    m_changed.wait(locked, [this] { return m_call == nullptr; });
}

void BackgroundCall::finish()
{
    wait();
    if (const std::exception_ptr raised = std::exchange(m_raised, nullptr)) {
        std::rethrow_exception(raised);
    }
}

bool BackgroundCall::waitUntil(std::chrono::steady_clock::time_point moment)
{
    std::unique_lock<std::mutex> locked(m_lock);
    return m_changed.wait_until(locked, moment, [this] { return m_call == nullptr; });
}

bool BackgroundCall::whenEnded(std::function<void()> tell)
{
    const std::lock_guard<std::mutex> locked(m_lock);
    if (m_call == nullptr) {
        return false;
    }
    m_tell = std::move(tell);
    return true;
}

void BackgroundCall::work()
{
    std::unique_lock<std::mutex> locked(m_lock);
    while (true) {
        m_changed.wait(locked, [this] { return m_call != nullptr || m_isOver; });
        if (m_call == nullptr) {
            return;
        }
        const std::function<void()>& call = *m_call;
        locked.unlock();
        std::exception_ptr raised;
        try {
            call();
        } catch (...) {
            raised = std::current_exception();
        }
        locked.lock();
        m_raised = raised;
        m_call = nullptr;
        if (const auto tell = std::exchange(m_tell, nullptr)) {
            tell();
        }
        m_changed.notify_all();
    }
}

} // namespace app
