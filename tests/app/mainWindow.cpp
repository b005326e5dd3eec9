// The tests of the window: on a real X server, whatever platform the environment names.

#include "app/Application.h"
#include "support/XSession.h"

#include <gtest/gtest.h>
#include <iostream>

int main(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    try {
        const test::XSession session(QSize(1920, 1080));
        qputenv("DISPLAY", session.display());
        qputenv("QT_QPA_PLATFORM", "xcb");
        app::Application application(argc, argv);
        QApplication::setStyle("Fusion"); // as the program does
        // Two clicks of a test never mean a double click.
        QApplication::setDoubleClickInterval(1);
        return RUN_ALL_TESTS();
    } catch (const std::runtime_error& error) {
        std::cerr << error.what() << std::endl;
        return 1;
    }
}
