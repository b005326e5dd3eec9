#include "app/WheelGuard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QCoreApplication>
#include <QEvent>

namespace app
{
namespace
{

/// The widget, if it is one of those whose value the wheel changes.
QWidget* valueWidget(QObject* object)
{
    if (auto* list = qobject_cast<QComboBox*>(object)) {
        return list;
    }
    return qobject_cast<QAbstractSpinBox*>(object);
}

} // namespace

WheelGuard::WheelGuard(QObject* parent) : QObject(parent)
{
    QCoreApplication::instance()->installEventFilter(this);
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Polish) {
        QWidget* widget = valueWidget(watched);
        if (widget != nullptr && widget->focusPolicy() == Qt::WheelFocus) {
            widget->setFocusPolicy(Qt::StrongFocus); // else the wheel itself would give it
        }
    } else if (event->type() == QEvent::Wheel) {
        const QWidget* widget = valueWidget(watched);
        if (widget != nullptr && !widget->hasFocus()) {
            event->accept(); // nothing behind it turns instead
            return true;
        }
    }
    return false;
}

} // namespace app
