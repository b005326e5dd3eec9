#pragma once

#include <condition_variable>
#include <mutex>

namespace test
{

/// Holds up other threads while it is shut. It is open at first, and again at its end.
class Gate
{
public:
    Gate() = default;
    ~Gate() { open(); }
    Gate(const Gate&) = delete;
    Gate& operator=(const Gate&) = delete;

    void shut() { set(false); }
    void open() { set(true); }
    /// Returns when the gate is open.
    void pass()
    {
        std::unique_lock<std::mutex> locked(m_lock);
        m_opened.wait(locked, [this] { return m_isOpen; });
    }

private:
    void set(bool isOpen)
    {
        {
            const std::lock_guard<std::mutex> locked(m_lock);
            m_isOpen = isOpen;
        }
        m_opened.notify_all();
    }

    std::mutex m_lock;
    std::condition_variable m_opened;
    bool m_isOpen = true;
};

} // namespace test
