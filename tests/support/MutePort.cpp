#include "support/MutePort.h"

#include <arpa/inet.h>
#include <netinet/in.h>
#include <stdexcept>
#include <sys/socket.h>

namespace test
{

MutePort::MutePort(Calls calls) : m_socket(socket(AF_INET, SOCK_STREAM, 0))
{
    constexpr int waitingCalls = 8;
    sockaddr_in address{};
    address.sin_family = AF_INET;
    address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
    socklen_t length = sizeof(address);
    auto* const generic = reinterpret_cast<sockaddr*>(&address);
    if (bind(m_socket.number(), generic, length) != 0 ||
        (calls == Calls::Taken && listen(m_socket.number(), waitingCalls) != 0) ||
        getsockname(m_socket.number(), generic, &length) != 0) {
        throw std::runtime_error("no port is to be had");
    }
    m_number = ntohs(address.sin_port);
}

} // namespace test
