#pragma once

#include "support/Descriptor.h"

#include <QString>
#include <optional>
#include <sys/types.h>

namespace test
{

/// The MariaDB server that all cases of one ctest run use. A process of its own keeps it
/// (`serverKeeper.cpp`), started by ctest before the first case that may need the server. It tells
/// of the server in a file of the build tree that is named after the ctest process, and holds a
/// lock on that file while it lives, so that a file that a crash left counts for nothing.
struct SharedServer {
    quint16 port = 0;
    pid_t keeper = 0; ///< ends the server when it is terminated

    /// The server of the ctest run with that process number, if it has one.
    [[nodiscard]] static std::optional<SharedServer> of(pid_t run);
    /// The server of the ctest run that this process was started by, be it through a script, a
    /// debugger or a test; nothing for a program that was started by hand.
    [[nodiscard]] static std::optional<SharedServer> ofThisRun();
};

/// Tells the cases of a ctest run of their server, while it exists.
class SharedServerNotice
{
public:
    /// Throws std::runtime_error when the file cannot be written.
    SharedServerNotice(pid_t run, SharedServer server);
    ~SharedServerNotice();
    SharedServerNotice(const SharedServerNotice&) = delete;
    SharedServerNotice& operator=(const SharedServerNotice&) = delete;

private:
    QString m_file;
    Descriptor m_locked;
};

} // namespace test
