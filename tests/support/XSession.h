#pragma once

#include <QByteArray>
#include <QProcess>
#include <QSize>
#include <QStringList>

namespace test
{

/// A private X server with a window manager: the screen, keyboard and mouse of a user. It ends with
/// the object, and with the process however that ends.
class XSession
{
public:
    /// Throws std::runtime_error when the server or the window manager does not start.
    explicit XSession(QSize screen = {1366, 768});
    ~XSession();
    XSession(const XSession&) = delete;
    XSession& operator=(const XSession&) = delete;

    /// The display's name, as the variable DISPLAY has it.
    [[nodiscard]] const QByteArray& display() const { return m_display; }

private:
    void startServer(QSize screen);
    void startWindowManager();

    QProcess m_server;
    QProcess m_windowManager;
    QByteArray m_display;
};

/// Plays the user's hands on the screen of the variable DISPLAY: the words of one or more xdotool
/// commands, such as "keydown shift click 1".
void byHand(const QString& commands);

} // namespace test
