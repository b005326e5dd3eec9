#include "app/StartWindow.h"

#include "app/Hands.h"

#include <QLabel>
#include <QPushButton>
#include <QWindow>
#include <gtest/gtest.h>

using namespace test;

namespace
{

class TheStartWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        window.showConnecting("<b>MonKalo</b>");
        ASSERT_TRUE(until([this] { return window.windowHandle()->isExposed(); }));
    }

    int cancelled = 0;
    app::StartWindow window{[this] { ++cancelled; }};
    Hands hands;
};

} // namespace

TEST_F(TheStartWindow, namesTheDatabaseAsItIs)
{
    const auto* text = window.findChild<QLabel*>("Connecting");
    ASSERT_NE(text, nullptr);
    EXPECT_EQ(text->text(), "Connexion à « <b>MonKalo</b> »…");
    EXPECT_EQ(text->textFormat(), Qt::PlainText);
}

TEST_F(TheStartWindow, isCancelledByItsButton)
{
    const auto* button = window.findChild<QPushButton*>();
    ASSERT_NE(button, nullptr);
    EXPECT_EQ(button->text(), "Annuler");
    hands.click(button);
    EXPECT_TRUE(until([this] { return cancelled == 1; }));
    EXPECT_FALSE(window.isVisible());
}

TEST_F(TheStartWindow, isCancelledByEscape)
{
    ASSERT_TRUE(until([this] { return window.isActiveWindow(); }));
    hands.press({"Escape"});
    EXPECT_TRUE(until([this] { return cancelled == 1; }));
}

TEST_F(TheStartWindow, isCancelledByItsClosing)
{
    ASSERT_TRUE(until([this] { return window.isActiveWindow(); }));
    hands.press({"alt+F4"});
    EXPECT_TRUE(until([this] { return cancelled == 1; }));
}
