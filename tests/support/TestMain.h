#pragma once

#include <gtest/gtest.h>

namespace test
{

/// Runs all tests of the executable while an application of that kind exists: Qt sets the
/// process's character set to UTF-8 with it, as in the program.
template <typename Application>
int runAllTests(int argc, char** argv)
{
    testing::InitGoogleTest(&argc, argv);
    const Application application(argc, argv);
    return RUN_ALL_TESTS();
}

} // namespace test
