#include "app/BackgroundCall.h"

#include "support/Gate.h"

#include <gtest/gtest.h>
#include <stdexcept>

using Clock = std::chrono::steady_clock;

TEST(BackgroundCall, runsEachCallOnOneThreadOfItsOwn)
{
    app::BackgroundCall background;
    std::thread::id first;
    std::thread::id second;
    const std::function<void()> one = [&] { first = std::this_thread::get_id(); };
    const std::function<void()> other = [&] { second = std::this_thread::get_id(); };
    background.start(one);
    background.finish();
    background.start(other);
    background.finish();
    EXPECT_EQ(first, second);
    EXPECT_NE(first, std::thread::id());
    EXPECT_NE(first, std::this_thread::get_id());
}

TEST(BackgroundCall, isWaitedForUpToAMoment)
{
    test::Gate gate;
    gate.shut();
    app::BackgroundCall background;
    const std::function<void()> call = [&] { gate.pass(); };
    background.start(call);
    EXPECT_FALSE(background.waitUntil(Clock::now()));
    gate.open();
    EXPECT_TRUE(background.waitUntil(Clock::time_point::max()));
}

TEST(BackgroundCall, tellsOfItsEndOnce)
{
    test::Gate gate;
    gate.shut();
    app::BackgroundCall background;
    int told = 0;
    const std::function<void()> call = [&] { gate.pass(); };
    background.start(call);
    EXPECT_TRUE(background.whenEnded([&] { ++told; }));
    gate.open();
    background.wait();
    EXPECT_EQ(told, 1);
    EXPECT_FALSE(background.whenEnded([&] { ++told; }));
    background.start(call);
    background.finish();
    EXPECT_EQ(told, 1);
}

TEST(BackgroundCall, raisesWhatTheCallRaisesAndGoesOn)
{
    app::BackgroundCall background;
    const std::function<void()> faulty = [] { throw std::runtime_error("gone"); };
    background.start(faulty);
    EXPECT_THROW(background.finish(), std::runtime_error);
    bool ran = false;
    const std::function<void()> sound = [&] { ran = true; };
    background.start(sound);
    background.finish();
    EXPECT_TRUE(ran);
}

TEST(BackgroundCall, isWaitedForAtTheEnd)
{
    bool ended = false;
    const std::function<void()> call = [&] { ended = true; };
    {
        app::BackgroundCall background;
        background.start(call);
    }
    EXPECT_TRUE(ended);
}
