#pragma once

#include <condition_variable>
#include <exception>
#include <functional>
#include <mutex>
#include <thread>

namespace app
{

/// Runs one call at a time on a thread of its own, so that the window can be served meanwhile. The
/// thread ends with the object, and both wait for the call under way.
class BackgroundCall
{
public:
    BackgroundCall();
    ~BackgroundCall();
    BackgroundCall(const BackgroundCall&) = delete; // the thread knows the object
    BackgroundCall& operator=(const BackgroundCall&) = delete;

    /// Begins the call. Requires: none is under way. The call lives until it has been waited for.
    void start(const std::function<void()>& call);
    /// Waits until the call has ended; so does `finish`, and raises what the call has raised.
    void wait();
    void finish();
    /// Waits until the call has ended, but no longer than to that moment. Tells whether it has.
    [[nodiscard]] bool waitUntil(std::chrono::steady_clock::time_point moment);
    /// Has `tell` run on the background thread when the call ends. False when it has ended before;
    /// then nothing is told.
    [[nodiscard]] bool whenEnded(std::function<void()> tell);

private:
    void work();

    std::mutex m_lock; ///< of everything below
    std::condition_variable m_changed;
    const std::function<void()>* m_call = nullptr; ///< null when none is under way
    std::function<void()> m_tell;
    std::exception_ptr m_raised;
    bool m_isOver = false; ///< the object's end has come
    std::thread m_thread;  ///< last: it begins at once
};

} // namespace app
