#pragma once

#include <functional>
#include <gtest/gtest.h>

namespace test
{

/// Runs the tests that the arguments choose while an application of that kind exists: Qt sets the
/// process's character set to UTF-8 with it, as in the program. `prepare` runs before them. Only
/// asked for their names, it makes no application: the build asks, and may have no display.
template <typename Application>
int runAllTests(int argc, char** argv, const std::function<void()>& prepare = {})
{
    testing::InitGoogleTest(&argc, argv);
    if (GTEST_FLAG_GET(list_tests)) {
        return RUN_ALL_TESTS();
    }
    const Application application(argc, argv);
    if (prepare) {
        prepare();
    }
    return RUN_ALL_TESTS();
}

} // namespace test
