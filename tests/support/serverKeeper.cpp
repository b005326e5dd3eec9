// Keeps the MariaDB server of a ctest run: `start` is run by ctest before the first case that may
// need the server and leaves a process behind that keeps it, `stop` is run after the last such
// case. The server ends with the ctest run in any case, even when that is killed.

#include "support/MariaDbServer.h"
#include "support/SharedServer.h"

#include <array>
#include <cerrno>
#include <csignal>
#include <cstring>
#include <fcntl.h>
#include <iostream>
#include <memory>
#include <poll.h>
#include <stdexcept>
#include <string>
#include <sys/signalfd.h>
#include <sys/syscall.h>
#include <unistd.h>

namespace
{

using test::Descriptor;

/// What becomes readable when that process has ended.
int endOf(pid_t process)
{
    // Not through the C library, whose header forgets C++.
    const auto descriptor = static_cast<int>(syscall(SYS_pidfd_open, process, 0));
    if (descriptor < 0) {
        throw std::runtime_error(std::string("pidfd_open: ") + std::strerror(errno));
    }
    return descriptor;
}

/// What becomes readable when this process is asked to end; from then on it only ends by itself.
int requestToEnd()
{
    sigset_t signals;
    sigemptyset(&signals);
    sigaddset(&signals, SIGTERM);
    sigprocmask(SIG_BLOCK, &signals, nullptr);
    return signalfd(-1, &signals, SFD_CLOEXEC);
}

/// ctest waits for whoever holds the ends of its pipes.
void letGoOfTheOutput()
{
    const Descriptor nothing(open("/dev/null", O_RDWR | O_CLOEXEC));
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        dup2(nothing.number(), stream);
    }
}

/// Keeps a server until the run ends or this process is asked to. Writes a byte when the server can
/// be used.
void keepServer(pid_t run, const Descriptor& ready)
{
    setsid(); // what the user's terminal sends is for ctest
    const Descriptor runEnded(endOf(run));
    const test::MariaDbServer server;
    const Descriptor asked(requestToEnd());
    const test::SharedServerNotice notice(run, {server.port(), getpid()});
    letGoOfTheOutput();
    if (write(ready.number(), "!", 1) != 1) {
        return; // nobody waits for it any more
    }
    std::array<pollfd, 2> events{{{runEnded.number(), POLLIN, 0}, {asked.number(), POLLIN, 0}}};
    while (poll(events.data(), events.size(), -1) < 0 && errno == EINTR) {
    }
}

int start()
{
    const pid_t run = getppid();
    std::array<int, 2> ends{};
    if (pipe2(ends.data(), O_CLOEXEC) != 0) {
        throw std::runtime_error("there is no pipe to be had");
    }
    const Descriptor reading(ends[0]);
    auto writing = std::make_unique<Descriptor>(ends[1]);
    const pid_t keeper = fork();
    if (keeper == 0) {
        keepServer(run, *writing);
        return 0;
    }
    writing.reset(); // so that the keeper's is the only one
    char byte = 0;
    return read(reading.number(), &byte, 1) == 1 ? 0 : 1;
}

int stop()
{
    constexpr int longestEndMilliseconds = 60000;
    const auto server = test::SharedServer::of(getppid());
    if (!server) {
        throw std::runtime_error("the server of this run has ended before its time");
    }
    const Descriptor ended(endOf(server->keeper));
    kill(server->keeper, SIGTERM);
    pollfd event{ended.number(), POLLIN, 0};
    if (poll(&event, 1, longestEndMilliseconds) != 1) {
        throw std::runtime_error("the server of this run does not end");
    }
    return 0;
}

} // namespace

int main(int argc, char** argv)
{
    const std::string task = argc == 2 ? argv[1] : "";
    try {
        if (task == "start") {
            return start();
        }
        if (task == "stop") {
            return stop();
        }
        std::cerr << "usage: server_keeper start|stop\n";
        return 2;
    } catch (const std::exception& error) {
        std::cerr << error.what() << std::endl;
        return 1;
    }
}
