#pragma once

#include <QDBusConnection>
#include <QDBusMessage>
#include <QObject>
#include <QProcess>
#include <QString>
#include <QTemporaryDir>

namespace test
{

/// A session bus of its own with the accessibility bus behind it, and somebody who listens there
/// as a screen reader does: it is told what gets the focus and asks the program for its words. Both
/// buses end with the object.
class ScreenReader : public QObject
{
    Q_OBJECT

public:
    /// Why there is no such bus to be had on this machine; empty when there is one.
    [[nodiscard]] static QString missing();

    /// Throws std::runtime_error when the buses do not start.
    ScreenReader();
    ~ScreenReader() override;

    /// What the variable DBUS_SESSION_BUS_ADDRESS of a program names that is to be heard.
    [[nodiscard]] QString sessionAddress() const { return m_sessionAddress; }
    /// How many programs have told the accessibility bus that they are there.
    [[nodiscard]] int programs() const;
    /// The name of what has got the focus last, as its program says it now; empty before.
    [[nodiscard]] QString focusName() const;
    /// Its role, such as "cell"; empty before.
    [[nodiscard]] QString focusRole() const;
    /// What has been told last of whatever had the focus by then: how it is described now.
    [[nodiscard]] const QString& description() const { return m_description; }

private Q_SLOTS:
    void hear(const QDBusMessage& signal);
    void hearOfChange(const QDBusMessage& signal);

private:
    void startSessionBus();
    [[nodiscard]] QString accessibilityAddress() const;
    void listen();

    QTemporaryDir m_folder; ///< of the buses' sockets, whose paths must be short
    QProcess m_sessionBus;
    QString m_sessionAddress;
    QDBusConnection m_session{QString()};
    QDBusConnection m_bus{QString()}; ///< of accessibility
    QString m_focusOwner;
    QString m_focusPath;
    QString m_description;
};

} // namespace test
