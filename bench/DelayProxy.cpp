#include "bench/DelayProxy.h"

#include <arpa/inet.h>
#include <array>
#include <cerrno>
#include <deque>
#include <list>
#include <netinet/tcp.h>
#include <poll.h>
#include <sys/socket.h>
#include <system_error>
#include <tuple>
#include <unistd.h>
#include <vector>

namespace bench
{
namespace
{

using Clock = std::chrono::steady_clock;

/// A socket that closes itself.
class Socket
{
public:
    explicit Socket(int descriptor) : m_descriptor(descriptor)
    {
        if (m_descriptor < 0) {
            throw std::system_error(errno, std::generic_category(), "socket");
        }
        const int on = 1; // the delay is ours alone
        setsockopt(m_descriptor, IPPROTO_TCP, TCP_NODELAY, &on, sizeof on);
    }
    ~Socket() { close(m_descriptor); }
    Socket(const Socket&) = delete;
    Socket& operator=(const Socket&) = delete;
    [[nodiscard]] int descriptor() const { return m_descriptor; }

private:
    int m_descriptor;
};

sockaddr_in loopback(quint16 port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

/// Bytes on their way from one socket to another.
struct Stretch {
    struct Piece {
        Clock::time_point due;
        std::vector<char> bytes;
    };
    std::deque<Piece> pieces;

    /// False when the sender has closed.
    bool take(int from, std::chrono::microseconds delay)
    {
        std::array<char, 65536> buffer{};
        const ssize_t count = recv(from, buffer.data(), buffer.size(), MSG_DONTWAIT);
        if (count > 0) {
            pieces.push_back({Clock::now() + delay, {buffer.begin(), buffer.begin() + count}});
        }
        return count > 0 || (count < 0 && (errno == EAGAIN || errno == EINTR));
    }

    void deliver(int to)
    {
        while (!pieces.empty() && pieces.front().due <= Clock::now()) {
            const std::vector<char>& bytes = pieces.front().bytes;
            std::size_t sent = 0;
            while (sent < bytes.size()) {
                const ssize_t count =
                    send(to, bytes.data() + sent, bytes.size() - sent, MSG_NOSIGNAL);
                if (count <= 0) {
                    break;
                }
                sent += static_cast<std::size_t>(count);
            }
            pieces.pop_front();
        }
    }
};

struct Link {
    Link(int clientSocket, quint16 serverPort)
        : client(clientSocket), server(socket(AF_INET, SOCK_STREAM, 0))
    {
        const sockaddr_in address = loopback(serverPort);
        // A link that is refused ends with its first move.
        std::ignore = connect(server.descriptor(), reinterpret_cast<const sockaddr*>(&address),
                              sizeof address);
    }

    /// False when either side has closed.
    bool move(std::chrono::microseconds delay)
    {
        const bool open =
            toServer.take(client.descriptor(), delay) && toClient.take(server.descriptor(), delay);
        toServer.deliver(server.descriptor());
        toClient.deliver(client.descriptor());
        return open;
    }

    Socket client;
    Socket server;
    Stretch toServer;
    Stretch toClient;
};

} // namespace

DelayProxy::DelayProxy(quint16 serverPort, std::chrono::milliseconds roundTrip)
    : m_serverPort(serverPort), m_listener(socket(AF_INET, SOCK_STREAM, 0))
{
    sockaddr_in address = loopback(0);
    socklen_t size = sizeof address;
    if (m_listener < 0 ||
        bind(m_listener, reinterpret_cast<const sockaddr*>(&address), size) != 0 ||
        listen(m_listener, 8) != 0 ||
        getsockname(m_listener, reinterpret_cast<sockaddr*>(&address), &size) != 0) {
        throw std::system_error(errno, std::generic_category(), "delay proxy");
    }
    m_port = ntohs(address.sin_port);
    m_thread = std::thread([this, roundTrip] { serve(roundTrip / 2); });
}

DelayProxy::~DelayProxy()
{
    m_stop = true;
    m_thread.join();
    close(m_listener);
}

void DelayProxy::serve(std::chrono::microseconds delay)
{
    std::list<Link> links;
    while (!m_stop) {
        std::vector<pollfd> waiting{{m_listener, POLLIN, 0}};
        bool underway = false;
        for (const Link& link : links) {
            waiting.push_back({link.client.descriptor(), POLLIN, 0});
            waiting.push_back({link.server.descriptor(), POLLIN, 0});
            underway = underway || !link.toServer.pieces.empty() || !link.toClient.pieces.empty();
        }
        // Pieces underway are looked after ten times a millisecond; else whoever speaks wakes us.
        const timespec nap{0, underway ? 100'000 : 20'000'000};
        ppoll(waiting.data(), waiting.size(), &nap, nullptr);
        if ((waiting.front().revents & POLLIN) != 0) {
            links.emplace_back(accept(m_listener, nullptr, nullptr), m_serverPort);
        }
        links.remove_if([delay](Link& link) { return !link.move(delay); });
    }
}

} // namespace bench
