#pragma once

#include "support/TestMain.h"
#include "support/XSession.h"

#include <QApplication>
#include <iostream>
#include <optional>
#include <stdexcept>

namespace test
{

/// Runs the tests that the arguments choose on an X server of their own, whatever display and
/// platform the environment names, with an application of that type. `prepare` runs before them,
/// when the application exists.
template <typename Application = QApplication>
int runAllTestsOnAScreen(int argc, char** argv, QSize screen,
                         const std::function<void()>& prepare = {})
try {
    testing::InitGoogleTest(&argc, argv);
    std::optional<XSession> session;
    if (!GTEST_FLAG_GET(list_tests)) {
        session.emplace(screen);
        qputenv("DISPLAY", session->display());
        qputenv("QT_QPA_PLATFORM", "xcb");
    }
    return runAllTests<Application>(argc, argv, prepare);
} catch (const std::runtime_error& error) {
    std::cerr << error.what() << std::endl;
    return 1;
}

} // namespace test
