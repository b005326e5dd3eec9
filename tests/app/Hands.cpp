#include "app/Hands.h"

#include "support/XSession.h"

#include <QAbstractButton>
#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QEvent>
#include <QTimer>
#include <QWindow>
#include <gtest/gtest.h>

namespace test
{
namespace
{

constexpr int kLongestWaitMilliseconds = 60000;

/// Where the mouse takes hold of a widget.
QPoint handleOf(const QWidget* widget)
{
    const bool hasIndicator = widget->inherits("QCheckBox") || widget->inherits("QRadioButton");
    return hasIndicator ? QPoint(8, widget->height() / 2) : widget->rect().center();
}

} // namespace

bool until(const std::function<bool()>& condition)
{
    bool late = false;
    QTimer watchdog;
    watchdog.setSingleShot(true);
    QObject::connect(&watchdog, &QTimer::timeout, [&late] { late = true; });
    watchdog.start(kLongestWaitMilliseconds);
    while (!condition()) {
        if (late) {
            return false;
        }
        QCoreApplication::processEvents(QEventLoop::AllEvents | QEventLoop::WaitForMoreEvents);
    }
    return true;
}

void Hands::play(const QString& commands)
{
    // The event loop stands still meanwhile: the program meets the events when it next looks.
    try {
        byHand(commands);
    } catch (const std::runtime_error& error) {
        ADD_FAILURE() << error.what();
    }
}

void Hands::moveTo(QPoint screenPoint) const
{
    play(QString("mousemove %1 %2").arg(screenPoint.x()).arg(screenPoint.y()));
}

void Hands::click(QPoint screenPoint) const
{
    play(QString("mousemove %1 %2 click 1").arg(screenPoint.x()).arg(screenPoint.y()));
}

void Hands::turnWheel(QPoint screenPoint, bool towardsUser) const
{
    play(QString("mousemove %1 %2 click %3")
             .arg(screenPoint.x())
             .arg(screenPoint.y())
             .arg(towardsUser ? 5 : 4));
}

void Hands::rightClick(QPoint screenPoint) const
{
    play(QString("mousemove %1 %2 click 3").arg(screenPoint.x()).arg(screenPoint.y()));
}

void Hands::doubleClick(QPoint screenPoint) const
{
    // Two presses of the same millisecond are two clicks.
    play(QString("mousemove %1 %2 click 1 sleep 0.01 click 1")
             .arg(screenPoint.x())
             .arg(screenPoint.y()));
}

void Hands::click(const QWidget* widget) const
{
    ASSERT_TRUE(widget->isVisible()) << widget->objectName().toStdString();
    ASSERT_TRUE(widget->isEnabled()) << widget->objectName().toStdString();
    click(widget->mapToGlobal(handleOf(widget)));
}

void Hands::press(const QStringList& keys) const
{
    play("key --delay 0 " + keys.join(' '));
}

void Hands::type(const QString& text) const
{
    play("type --delay 0 " + text);
}

bool Hands::choose(QComboBox* list, int index) const
{
    // Pressed on the list and let go over the item. Two clicks would race: the list that opens
    // under the first may take its release for a choice.
    const QPoint handle = list->mapToGlobal(handleOf(list));
    play(QString("mousemove %1 %2 mousedown 1").arg(handle.x()).arg(handle.y()));
    QAbstractItemView* view = list->view();
    if (!until(
            [view] { return view->isVisible() && view->window()->windowHandle()->isExposed(); })) {
        return false;
    }
    const QRect item = view->visualRect(list->model()->index(index, list->modelColumn()));
    moveTo(view->viewport()->mapToGlobal(item.center()));
    if (!until([view, index] { return view->currentIndex().row() == index; })) {
        return false;
    }
    play("mouseup 1");
    return until([view] { return !view->isVisible(); });
}

void Hands::replaceText(const QWidget* field, const QString& text) const
{
    click(field);
    press({"ctrl+a"});
    type(text);
}

DialogAnswer::DialogAnswer(std::function<void(QDialog&)> answer) : m_answer(std::move(answer))
{
    QCoreApplication::instance()->installEventFilter(this);
}

DialogAnswer::~DialogAnswer()
{
    QCoreApplication::instance()->removeEventFilter(this);
}

bool DialogAnswer::eventFilter(QObject* watched, QEvent* event)
{
    auto* dialog = qobject_cast<QDialog*>(watched);
    if (dialog != nullptr && event->type() == QEvent::Show) {
        ++m_count;
        QTimer::singleShot(0, dialog, [this, dialog] { m_answer(*dialog); });
    }
    return false;
}

} // namespace test
