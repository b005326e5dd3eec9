#pragma once

#include <QtGlobal>
#include <atomic>
#include <chrono>
#include <thread>

namespace bench
{

/// Stands between the program and a server on this machine and lets every byte arrive late: a
/// server that is far away, as far as waiting goes. Bandwidth is not limited.
class DelayProxy
{
public:
    /// `roundTrip` is what a question and its answer lose together. Listens on a free loopback
    /// port. Throws std::system_error when it cannot.
    DelayProxy(quint16 serverPort, std::chrono::milliseconds roundTrip);
    /// Ends all connections.
    ~DelayProxy();
    DelayProxy(const DelayProxy&) = delete;
    DelayProxy& operator=(const DelayProxy&) = delete;

    [[nodiscard]] quint16 port() const { return m_port; }

private:
    void serve(std::chrono::microseconds delay);

    quint16 m_serverPort;
    quint16 m_port = 0;
    int m_listener = -1;
    std::atomic<bool> m_stop = false;
    std::thread m_thread;
};

} // namespace bench
