#pragma once

#include <functional>
#include <memory>

namespace app
{

/// The system's wish that the program end: a signal on Unix (SIGTERM, SIGINT, SIGHUP). Windows
/// sends none to a program with a window; there, as with session managers, the end of a session
/// comes through the toolkit (QGuiApplication::commitDataRequest; what follows, Windows may cut
/// short).
class EndSignal
{
public:
    /// From here on the signals wait instead of ending the process. Requires: the process has no
    /// other thread so far.
    EndSignal();
    /// Gives the signals their usual effect back.
    ~EndSignal();
    EndSignal(const EndSignal&) = delete; // its description is the process's own
    EndSignal& operator=(const EndSignal&) = delete;

    /// Has `end` run by the event loop when a signal comes, or has come. Requires an application.
    void serve(std::function<void()> end);
    /// No more; the signals wait again.
    void stop();

private:
    struct Source;
    std::unique_ptr<Source> m_source;
};

} // namespace app
