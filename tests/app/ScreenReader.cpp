#include "app/ScreenReader.h"

#include "support/ChildProgram.h"

#include <QDBusReply>
#include <QFile>
#include <stdexcept>

namespace test
{
namespace
{

constexpr auto kRegistry = "org.a11y.atspi.Registry";
constexpr auto kAccessible = "org.a11y.atspi.Accessible";

// Names of the connections within this process.
const QString kSessionName = QStringLiteral("session of the test");
const QString kBusName = QStringLiteral("accessibility of the test");

/// The answer to a call, or an exception that says why there is none.
QDBusMessage answered(const QDBusConnection& bus, const QDBusMessage& call)
{
    const QDBusMessage answer = bus.call(call);
    if (answer.type() != QDBusMessage::ReplyMessage) {
        throw std::runtime_error(
            (call.member() + QStringLiteral(": ") + answer.errorMessage()).toStdString());
    }
    return answer;
}

QDBusMessage propertyCall(const QString& owner, const QString& path, const QString& property)
{
    QDBusMessage call = QDBusMessage::createMethodCall(
        owner, path, QStringLiteral("org.freedesktop.DBus.Properties"), QStringLiteral("Get"));
    call << QString::fromLatin1(kAccessible) << property;
    return call;
}

} // namespace

QString ScreenReader::missing()
{
    if (findProgram(QStringLiteral("dbus-daemon")).isEmpty()) {
        return QStringLiteral("there is no dbus-daemon (Debian package dbus-daemon)");
    }
    return QFile::exists(QStringLiteral("/usr/share/dbus-1/services/org.a11y.Bus.service"))
               ? QString()
               : QStringLiteral("there is no accessibility bus (Debian package at-spi2-core)");
}

ScreenReader::ScreenReader()
{
    startSessionBus();
    m_session = QDBusConnection::connectToBus(m_sessionAddress, kSessionName);
    m_bus = QDBusConnection::connectToBus(accessibilityAddress(), kBusName);
    if (!m_bus.isConnected()) {
        throw std::runtime_error("the accessibility bus lets nobody in: " +
                                 m_bus.lastError().message().toStdString());
    }
    listen();
}

ScreenReader::~ScreenReader()
{
    QDBusConnection::disconnectFromBus(kBusName);
    QDBusConnection::disconnectFromBus(kSessionName);
    m_sessionBus.terminate(); // and what it has started goes with it
    m_sessionBus.waitForFinished();
}

void ScreenReader::startSessionBus()
{
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), m_folder.path());
    environment.insert(QStringLiteral("GSETTINGS_BACKEND"), QStringLiteral("memory"));
    environment.remove(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"));
    environment.remove(QStringLiteral("AT_SPI_BUS_ADDRESS"));
    m_sessionBus.setProcessEnvironment(environment);
    dieWithParent(m_sessionBus);
    m_sessionBus.start(findProgram(QStringLiteral("dbus-daemon")),
                       {QStringLiteral("--session"), QStringLiteral("--nofork"),
                        QStringLiteral("--nopidfile"), QStringLiteral("--print-address"),
                        QStringLiteral("--address=unix:path=") + m_folder.filePath("session")});
    while (!m_sessionBus.canReadLine()) {
        if (!m_sessionBus.waitForReadyRead()) {
            throw std::runtime_error("the session bus does not start: " +
                                     m_sessionBus.readAllStandardError().toStdString());
        }
    }
    m_sessionAddress = QString::fromUtf8(m_sessionBus.readLine()).trimmed();
}

QString ScreenReader::accessibilityAddress() const
{
    const QDBusMessage call = QDBusMessage::createMethodCall(
        QStringLiteral("org.a11y.Bus"), QStringLiteral("/org/a11y/bus"),
        QStringLiteral("org.a11y.Bus"), QStringLiteral("GetAddress"));
    return answered(m_session, call).arguments().value(0).toString();
}

void ScreenReader::listen()
{
    // A program tells only what somebody has asked to be told.
    for (const char* event : {"focus:", "object:state-changed:focused",
                              "object:property-change:accessible-description"}) {
        QDBusMessage call = QDBusMessage::createMethodCall(
            QString::fromLatin1(kRegistry), QStringLiteral("/org/a11y/atspi/registry"),
            QString::fromLatin1(kRegistry), QStringLiteral("RegisterEvent"));
        call << QString::fromLatin1(event) << QStringList() << QString();
        static_cast<void>(answered(m_bus, call));
    }
    if (!m_bus.connect(QString(), QString(), QStringLiteral("org.a11y.atspi.Event.Object"),
                       QStringLiteral("StateChanged"), this, SLOT(hear(QDBusMessage))) ||
        !m_bus.connect(QString(), QString(), QStringLiteral("org.a11y.atspi.Event.Object"),
                       QStringLiteral("PropertyChange"), this, SLOT(hearOfChange(QDBusMessage)))) {
        throw std::runtime_error("nothing can be heard on the accessibility bus");
    }
}

void ScreenReader::hear(const QDBusMessage& signal)
{
    const QList<QVariant> told = signal.arguments();
    if (told.value(0).toString() == QStringLiteral("focused") && told.value(1).toInt() == 1) {
        m_focusOwner = signal.service();
        m_focusPath = signal.path();
    }
}

void ScreenReader::hearOfChange(const QDBusMessage& signal)
{
    const QList<QVariant> told = signal.arguments();
    const bool isOfFocus = signal.service() == m_focusOwner && signal.path() == m_focusPath;
    if (isOfFocus && told.value(0).toString() == QStringLiteral("accessible-description")) {
        // Versions differ in what they send along: the program is asked.
        const QDBusReply<QDBusVariant> words =
            m_bus.call(propertyCall(m_focusOwner, m_focusPath, QStringLiteral("Description")));
        m_description = words.isValid() ? words.value().variant().toString() : QString();
    }
}

int ScreenReader::programs() const
{
    const QDBusMessage answer =
        answered(m_bus, propertyCall(QString::fromLatin1(kRegistry),
                                     QStringLiteral("/org/a11y/atspi/accessible/root"),
                                     QStringLiteral("ChildCount")));
    return answer.arguments().value(0).value<QDBusVariant>().variant().toInt();
}

QString ScreenReader::focusName() const
{
    if (m_focusPath.isEmpty()) {
        return {};
    }
    // A cell that has gone meanwhile has no name any more.
    const QDBusReply<QDBusVariant> name =
        m_bus.call(propertyCall(m_focusOwner, m_focusPath, QStringLiteral("Name")));
    return name.isValid() ? name.value().variant().toString() : QString();
}

QString ScreenReader::focusRole() const
{
    if (m_focusPath.isEmpty()) {
        return {};
    }
    const QDBusReply<QString> role = m_bus.call(
        QDBusMessage::createMethodCall(m_focusOwner, m_focusPath, QString::fromLatin1(kAccessible),
                                       QStringLiteral("GetRoleName")));
    return role.isValid() ? role.value() : QString();
}

} // namespace test
