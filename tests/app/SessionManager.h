#pragma once

#include <QString>
#include <functional>
#include <memory>

namespace test
{

/// A manager of desktop sessions, as a user logs out of: it speaks the X Session Management
/// Protocol with one program. Nothing is done but in these calls, each of which waits a minute at
/// most.
class SessionManager
{
public:
    /// Throws std::runtime_error when nobody can call it.
    SessionManager();
    ~SessionManager();
    SessionManager(const SessionManager&) = delete;
    SessionManager& operator=(const SessionManager&) = delete;

    /// The value of the variable SESSION_MANAGER of its programs.
    [[nodiscard]] QString address() const;
    /// Waits until a program has registered. False when none does.
    [[nodiscard]] bool waitForProgram();
    /// The user wants to log out. False unless the program says that it has saved its things.
    [[nodiscard]] bool askToSave();
    /// The user stays after all.
    void callOff();
    /// The session is over. False unless the program hangs up.
    [[nodiscard]] bool end();

private:
    struct Protocol;
    [[nodiscard]] bool serveUntil(const std::function<bool()>& done);

    std::unique_ptr<Protocol> m_protocol;
};

} // namespace test
