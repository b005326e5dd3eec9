#include "app/KeyState.h"

#include <QCoreApplication>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWindow>
#include <gtest/gtest.h>

using absences::AsyncKeyState;
using absences::VirtualKey;

namespace
{

constexpr quint32 left = 50;
constexpr quint32 right = 62;

class TheKeyState : public testing::Test
{
protected:
    void key(QEvent::Type type, Qt::Key code, quint32 physical = left, bool repeated = false)
    {
        QKeyEvent event(type, code, Qt::NoModifier, physical, 0, 0, QString(), repeated);
        QCoreApplication::sendEvent(&receiver, &event);
    }
    void click(QEvent::Type type, Qt::KeyboardModifiers modifiers)
    {
        QMouseEvent event(type, QPointF(), QPointF(), Qt::LeftButton, Qt::LeftButton, modifiers);
        QCoreApplication::sendEvent(&receiver, &event);
    }
    [[nodiscard]] std::int16_t ctrl() const { return keys->state(VirtualKey::Ctrl); }
    [[nodiscard]] std::int16_t shift() const { return keys->state(VirtualKey::Shift); }

    QObject receiver;
    std::unique_ptr<AsyncKeyState> keys = app::makeKeyState();
};

} // namespace

TEST_F(TheKeyState, hearsOfPressesAndReleases)
{
    EXPECT_EQ(ctrl(), 0);
    key(QEvent::KeyPress, Qt::Key_Control);
    EXPECT_EQ(shift(), 0);
    EXPECT_EQ(ctrl(), AsyncKeyState::kDownAndPressed);
    EXPECT_EQ(ctrl(), AsyncKeyState::kDown);
    key(QEvent::KeyRelease, Qt::Key_Control);
    EXPECT_EQ(ctrl(), 0);
    key(QEvent::KeyPress, Qt::Key_Shift);
    EXPECT_EQ(shift(), AsyncKeyState::kDownAndPressed);
    EXPECT_EQ(ctrl(), 0);
}

TEST_F(TheKeyState, tellsTheLeftKeyFromTheRightOne)
{
    key(QEvent::KeyPress, Qt::Key_Control, left);
    key(QEvent::KeyPress, Qt::Key_Control, right);
    key(QEvent::KeyRelease, Qt::Key_Control, left);
    EXPECT_EQ(ctrl(), AsyncKeyState::kDownAndPressed);
    key(QEvent::KeyRelease, Qt::Key_Control, right);
    EXPECT_EQ(ctrl(), 0);
}

TEST_F(TheKeyState, takesARepetitionForNoPress)
{
    key(QEvent::KeyPress, Qt::Key_Control);
    EXPECT_EQ(ctrl(), AsyncKeyState::kDownAndPressed);
    key(QEvent::KeyPress, Qt::Key_Control, left, true);
    EXPECT_EQ(ctrl(), AsyncKeyState::kDown);
}

TEST_F(TheKeyState, pressesNoOtherKeys)
{
    key(QEvent::KeyPress, Qt::Key_Alt);
    key(QEvent::KeyPress, Qt::Key_A);
    EXPECT_EQ(ctrl(), 0);
    EXPECT_EQ(shift(), 0);
}

TEST_F(TheKeyState, learnsFromClicksWhatItDidNotSee)
{
    for (const QEvent::Type type :
         {QEvent::MouseButtonPress, QEvent::MouseButtonRelease, QEvent::MouseButtonDblClick}) {
        click(type, Qt::ControlModifier);
        EXPECT_EQ(ctrl(), AsyncKeyState::kDownAndPressed);
        EXPECT_EQ(shift(), 0);
        click(type, Qt::ShiftModifier);
        EXPECT_EQ(shift(), AsyncKeyState::kDownAndPressed);
        EXPECT_EQ(ctrl(), 0);
        click(type, Qt::NoModifier);
        EXPECT_EQ(shift(), 0);
    }
}

TEST_F(TheKeyState, learnsWhatIsUpWhenAWindowGetsTheFocus)
{
    key(QEvent::KeyPress, Qt::Key_Control); // and released in another program's window
    QFocusEvent inside(QEvent::FocusIn);
    QCoreApplication::sendEvent(&receiver, &inside);
    EXPECT_EQ(ctrl(), AsyncKeyState::kDownAndPressed); // from one field to the next
    QWindow window;
    QFocusEvent coming(QEvent::FocusIn);
    QCoreApplication::sendEvent(&window, &coming);
    EXPECT_EQ(ctrl(), 0);
}

TEST_F(TheKeyState, keepsNoEventToItself)
{
    struct Receiver : QObject {
        bool event(QEvent* event) override
        {
            received += event->type() == QEvent::KeyPress ? 1 : 0;
            return true;
        }
        int received = 0;
    } other;
    QKeyEvent event(QEvent::KeyPress, Qt::Key_Control, Qt::NoModifier);
    QCoreApplication::sendEvent(&other, &event);
    EXPECT_EQ(other.received, 1);
}
