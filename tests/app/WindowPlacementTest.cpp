#include "app/WindowPlacement.h"

#include <QWidget>
#include <gtest/gtest.h>

using app::WindowPlacement;

TEST(WindowPlacement, isKeptAsAText)
{
    const WindowPlacement placement{false, QRect(100, -50, 1280, 720)};
    EXPECT_EQ(placement.toText(), "0 100 -50 1280 720");
    EXPECT_EQ(WindowPlacement::fromText("0 100 -50 1280 720"), placement);
    EXPECT_EQ(WindowPlacement::fromText("1 0 0 900 600"),
              (WindowPlacement{true, QRect(0, 0, 900, 600)}));
}

TEST(WindowPlacement, isNothingForAnyOtherText)
{
    for (const char* text : {"", "1", "1 0 0 900", "1 0 0 900 600 7", "1 0 0 900 x", "0 0 0 0 600",
                             "0 0 0 900 -1", "0 0 0 40000 600", "1  0 0 900 600"}) {
        EXPECT_EQ(WindowPlacement::fromText(text), std::nullopt) << text;
    }
}

TEST(WindowPlacement, ofAMaximisedWindowIsThatAlone)
{
    const WindowPlacement maximised{true, QRect(0, 0, 900, 600)};
    EXPECT_TRUE(maximised.looksLike({true, QRect(5, 5, 10, 10)}));
    EXPECT_FALSE(maximised.looksLike({false, QRect(0, 0, 900, 600)}));
    const WindowPlacement normal{false, QRect(0, 0, 900, 600)};
    EXPECT_TRUE(normal.looksLike(normal));
    EXPECT_FALSE(normal.looksLike({false, QRect(1, 0, 900, 600)}));
}

TEST(WindowPlacement, isTakenWhereAScreenShowsIt)
{
    QWidget window;
    WindowPlacement{false, QRect(20, 30, 640, 480)}.apply(window);
    EXPECT_EQ(window.geometry(), QRect(20, 30, 640, 480));
    EXPECT_FALSE(window.isMaximized());
    QWidget other; // of a screen that is gone the size alone is taken
    WindowPlacement{true, QRect(20000, 30, 500, 400)}.apply(other);
    EXPECT_LT(other.x(), 1000);
    EXPECT_EQ(other.size(), QSize(500, 400));
    EXPECT_TRUE(other.isMaximized());
}
