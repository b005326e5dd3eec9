#include "app/WindowDesk.h"

using test::TheWindow;

TEST_F(TheWindow, fitsAScreenOf1366PixelsWhateverItShows)
{
    constexpr int screenWidth = 1366;
    open();
    form().Check2.setChecked(true);
    form().ElemDep.setChecked(true);
    form().Check1.setChecked(true);
    const auto width = [this] {
        window().forward([] {}); // brings the widgets up to date
        QCoreApplication::sendPostedEvents();
        return window().minimumSizeHint().width();
    };
    EXPECT_LE(width(), screenWidth);
    form().OpExam.select();
    EXPECT_LE(width(), screenWidth);
}
