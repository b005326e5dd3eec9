#include "app/asking/AskingLine.h"

#include "support/RuntimeMatchers.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <gtest/gtest.h>

namespace
{

/// Gives the line a key in its turn.
void give(app::AskingLine& line, int key, Qt::KeyboardModifiers modifiers, const QString& text)
{
    QKeyEvent press(QEvent::KeyPress, key, modifiers, text);
    QCoreApplication::sendEvent(&line, &press);
}

} // namespace

TEST(TheAskingLine, leadsToTheListByTheKeyDown)
{
    app::AskingLine line;
    give(line, Qt::Key_Down, Qt::NoModifier, {}); // nobody waits for it
    int downs = 0;
    line.onDown = [&] {
        ++downs;
        EXPECT_EQ(line.text(), "a");
    };
    give(line, Qt::Key_A, Qt::NoModifier, "a");
    EXPECT_EQ(downs, 0);
    give(line, Qt::Key_Down, Qt::NoModifier, {});
    EXPECT_EQ(downs, 1);
    give(line, Qt::Key_Down, Qt::AltModifier, {});
    EXPECT_EQ(downs, 1);
}
