#include "support/CuttingProxy.h"

#include <arpa/inet.h>
#include <array>
#include <netinet/in.h>
#include <netinet/tcp.h>
#include <poll.h>
#include <stdexcept>
#include <sys/eventfd.h>
#include <sys/socket.h>
#include <unistd.h>
#include <utility>

namespace test
{
namespace
{

using Verdict = CuttingProxy::Verdict;

sockaddr_in onThisMachine(quint16 port)
{
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_port = htons(port);
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    return address;
}

/// Commands are small, and each waits for the answer to the one before.
void sendAtOnce(const Descriptor& connection)
{
    const int on = 1;
    setsockopt(connection.number(), IPPROTO_TCP, TCP_NODELAY, &on, sizeof(on));
}

bool sendAll(const Descriptor& to, const QByteArray& bytes)
{
    qsizetype sent = 0;
    while (sent < bytes.size()) {
        const ssize_t now = send(to.number(), bytes.constData() + sent,
                                 static_cast<std::size_t>(bytes.size() - sent), MSG_NOSIGNAL);
        if (now <= 0) {
            return false;
        }
        sent += now;
    }
    return true;
}

/// What is there to be read; empty when the other side has closed.
QByteArray receive(const Descriptor& from)
{
    std::array<char, 65536> buffer{};
    const ssize_t size = recv(from.number(), buffer.data(), buffer.size(), 0);
    return {buffer.data(), size > 0 ? static_cast<qsizetype>(size) : 0};
}

/// Takes one packet off the front of the stream; empty while it has not arrived as a whole.
QByteArray takePacket(QByteArray& stream)
{
    constexpr qsizetype headerSize = 4; // three bytes of length, one of sequence number
    if (stream.size() < headerSize) {
        return {};
    }
    const auto byte = [&](qsizetype at) { return static_cast<quint8>(stream.at(at)); };
    const qsizetype size = headerSize + (byte(0) | byte(1) << 8 | byte(2) << 16);
    if (stream.size() < size) {
        return {};
    }
    const QByteArray packet = stream.left(size);
    stream.remove(0, size);
    return packet;
}

/// Sends on what has arrived from the program until something is to be cut.
Verdict passOn(QByteArray& stream, const Descriptor& server, const CuttingProxy::Judge& judge)
{
    constexpr qsizetype sequencePosition = 3;
    constexpr qsizetype contentPosition = 4;
    for (;;) {
        const QByteArray packet = takePacket(stream);
        if (packet.isEmpty()) {
            return Verdict::Pass;
        }
        // A command starts a new sequence; what else a program sends belongs to the greeting.
        const bool isCommand = packet.at(sequencePosition) == 0 && packet.size() > contentPosition;
        const Verdict verdict = isCommand ? judge(packet.mid(contentPosition)) : Verdict::Pass;
        if (verdict == Verdict::Stall) {
            return verdict;
        }
        if (verdict == Verdict::Cut || !sendAll(server, packet)) {
            return Verdict::Cut;
        }
        if (verdict != Verdict::Pass) {
            return verdict;
        }
    }
}

/// An answer on its way, which goes no further than to the middle of its second row or column.
class HalfAnswer
{
public:
    explicit HalfAnswer(Verdict verdict = Verdict::CutRows)
        : m_isPart(verdict == Verdict::CutColumns ? describesColumn : isRow)
    {
    }

    /// What of these bytes may be sent on.
    [[nodiscard]] QByteArray taken(const QByteArray& bytes)
    {
        m_waiting += bytes;
        QByteArray sent;
        for (QByteArray packet = takePacket(m_waiting); !packet.isEmpty();
             packet = takePacket(m_waiting)) {
            if (m_isPart(packet) && m_hasFirst) {
                m_isCut = true;
                return sent + packet.left(packet.size() / 2);
            }
            m_hasFirst |= m_isPart(packet);
            sent += packet;
        }
        return sent;
    }
    [[nodiscard]] bool isCut() const { return m_isCut; }

private:
    /// The row of a prepared statement begins with a zero; so does the first packet of an answer
    /// that tells of success, and none of those that describe a column or end them.
    static bool isRow(const QByteArray& packet)
    {
        constexpr qsizetype sequencePosition = 3;
        constexpr qsizetype contentPosition = 4;
        return packet.size() > contentPosition && packet.at(sequencePosition) != 1 &&
               packet.at(contentPosition) == 0;
    }

    static bool describesColumn(const QByteArray& packet)
    {
        constexpr qsizetype contentPosition = 4;
        return packet.mid(contentPosition, 4) == "\x03"
                                                 "def";
    }

    bool (*m_isPart)(const QByteArray& packet);
    QByteArray m_waiting;
    bool m_hasFirst = false;
    bool m_isCut = false;
};

/// Lets the server finish what it was sent: it closes when it has come to the end.
void drain(const Descriptor& server)
{
    shutdown(server.number(), SHUT_WR);
    while (!receive(server).isEmpty()) {
    }
}

} // namespace

CuttingProxy::CuttingProxy(quint16 serverPort, Judge judge)
    : m_serverPort(serverPort), m_judge(std::move(judge)),
      m_listener(socket(AF_INET, SOCK_STREAM, 0)), m_end(eventfd(0, 0))
{
    sockaddr_in address = onThisMachine(0);
    socklen_t length = sizeof(address);
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    if (bind(m_listener.number(), generic, length) != 0 ||
        getsockname(m_listener.number(), generic, &length) != 0 ||
        listen(m_listener.number(), 1) != 0) {
        throw std::runtime_error("no port for the proxy");
    }
    m_port = ntohs(address.sin_port);
    m_thread = std::thread([this] { run(); });
}

CuttingProxy::~CuttingProxy()
{
    eventfd_write(m_end.number(), 1);
    m_thread.join();
}

QString CuttingProxy::through(const QString& connectString) const
{
    QString turned = connectString;
    return turned.replace(QStringLiteral(";port=%1OPTION").arg(m_serverPort),
                          QStringLiteral(";port=%1OPTION").arg(m_port));
}

void CuttingProxy::run()
{
    for (;;) {
        std::array<pollfd, 2> waiting = {
            {{m_listener.number(), POLLIN, 0}, {m_end.number(), POLLIN, 0}}};
        poll(waiting.data(), waiting.size(), -1);
        if (waiting[1].revents != 0) {
            return;
        }
        serve(Descriptor(accept(m_listener.number(), nullptr, nullptr)));
    }
}

void CuttingProxy::serve(const Descriptor& program)
{
    const Descriptor server(socket(AF_INET, SOCK_STREAM, 0));
    const sockaddr_in address = onThisMachine(m_serverPort);
    if (connect(server.number(), reinterpret_cast<const sockaddr*>(&address), sizeof(address)) !=
        0) {
        return;
    }
    sendAtOnce(program);
    sendAtOnce(server);
    converse(program, server);
}

/// Passes on both ways until one side closes, or something is cut.
void CuttingProxy::converse(const Descriptor& program, const Descriptor& server)
{
    QByteArray fromProgram;
    Verdict verdict = Verdict::Pass;
    HalfAnswer half;
    for (;;) {
        // In silence nothing is heard of the server.
        const int heard = verdict == Verdict::Stall ? -1 : server.number();
        std::array<pollfd, 3> waiting = {
            {{program.number(), POLLIN, 0}, {heard, POLLIN, 0}, {m_end.number(), POLLIN, 0}}};
        poll(waiting.data(), waiting.size(), -1);
        if (waiting[2].revents != 0) {
            return;
        }
        if (waiting[1].revents != 0) {
            const bool halves = verdict != Verdict::Pass;
            const QByteArray answer = receive(server);
            if (answer.isEmpty() || !sendAll(program, halves ? half.taken(answer) : answer)) {
                return;
            }
            if (half.isCut() && verdict != Verdict::StallRows) {
                return;
            }
            if (half.isCut()) {
                verdict = Verdict::Stall;
            }
        }
        if (waiting[0].revents != 0) {
            const QByteArray commands = receive(program);
            if (commands.isEmpty()) {
                return;
            }
            fromProgram += commands;
            if (verdict == Verdict::Stall) {
                continue;
            }
            verdict = passOn(fromProgram, server, m_judge);
            half = HalfAnswer(verdict);
            if (verdict == Verdict::CutAnswer) {
                drain(server);
            }
            if (verdict == Verdict::Cut || verdict == Verdict::CutAnswer) {
                return;
            }
        }
    }
}

} // namespace test
