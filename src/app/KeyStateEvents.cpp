#include "absences/KeyStateTracker.h"
#include "app/KeyState.h"

#include <QCoreApplication>
#include <QEvent>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QObject>
#include <optional>

namespace app
{
namespace
{

using absences::VirtualKey;

std::optional<VirtualKey> virtualKey(const QKeyEvent& event)
{
    switch (event.key()) {
    case Qt::Key_Shift:
        return VirtualKey::Shift;
    case Qt::Key_Control:
        return VirtualKey::Ctrl;
    default:
        return std::nullopt;
    }
}

/// Watches all events of the application. One event may pass several times, once per object that
/// it is offered to; what it says of the keyboard stays the same.
class EventKeyState : public QObject, public absences::AsyncKeyState
{
public:
    EventKeyState() { QCoreApplication::instance()->installEventFilter(this); }

    [[nodiscard]] std::int16_t state(VirtualKey key) override { return m_keys.state(key); }

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        switch (event->type()) {
        case QEvent::KeyPress:
        case QEvent::KeyRelease:
            noteKey(dynamic_cast<const QKeyEvent&>(*event));
            break;
        case QEvent::MouseButtonPress:
        case QEvent::MouseButtonRelease:
        case QEvent::MouseButtonDblClick:
            noteModifiers(dynamic_cast<const QMouseEvent&>(*event).modifiers());
            break;
        case QEvent::FocusIn:
            if (watched->isWindowType()) {
                // Keys that went up or down in another program's window sent no event here.
                noteModifiers(QGuiApplication::queryKeyboardModifiers());
            }
            break;
        default:
            break;
        }
        return false;
    }

private:
    void noteKey(const QKeyEvent& event)
    {
        const std::optional<VirtualKey> key = virtualKey(event);
        if (!key) {
            return;
        }
        if (event.isAutoRepeat()) {
            m_keys.observe(*key, true);
        } else if (event.type() == QEvent::KeyPress) {
            m_keys.press(*key, event.nativeScanCode());
        } else {
            m_keys.release(*key, event.nativeScanCode());
        }
    }

    void noteModifiers(Qt::KeyboardModifiers modifiers)
    {
        m_keys.observe(VirtualKey::Shift, modifiers.testFlag(Qt::ShiftModifier));
        m_keys.observe(VirtualKey::Ctrl, modifiers.testFlag(Qt::ControlModifier));
    }

    absences::KeyStateTracker m_keys;
};

} // namespace

std::unique_ptr<absences::AsyncKeyState> makeKeyState()
{
    return std::make_unique<EventKeyState>();
}

} // namespace app
