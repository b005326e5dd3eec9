#include "app/Waiting.h"

#include "support/Gate.h"

#include <QStringList>
#include <QTimer>
#include <gtest/gtest.h>
#include <stdexcept>

namespace
{

using std::chrono::milliseconds;

class AWait : public testing::Test
{
protected:
    /// A sign that writes down when it comes and goes.
    [[nodiscard]] app::Waiting::Sign signAfter(milliseconds time)
    {
        return {time, [this] { log << "shown"; }, [this] { log << "hidden"; }};
    }

    QStringList log;
    app::Waiting::Sign atOnce = signAfter(milliseconds(0));
    app::Waiting::Sign never = signAfter(std::chrono::hours(1));
    test::Gate gate;
    app::Waiting waiting;
};

} // namespace

TEST_F(AWait, runsACallOutsideAnActionAsItComes)
{
    std::thread::id thread;
    waiting.run([&] { thread = std::this_thread::get_id(); });
    EXPECT_EQ(thread, std::this_thread::get_id());
}

TEST_F(AWait, runsTheCallsOfAnActionInTheBackground)
{
    std::thread::id thread;
    const app::Waiting::Action action(waiting, never);
    waiting.run([&] { thread = std::this_thread::get_id(); });
    EXPECT_NE(thread, std::thread::id());
    EXPECT_NE(thread, std::this_thread::get_id());
}

TEST_F(AWait, servesEventsAndShowsTheSignWhileACallLasts)
{
    gate.shut();
    QTimer::singleShot(0, [&] {
        EXPECT_TRUE(waiting.isServing());
        log << "served";
        gate.open();
    });
    {
        const app::Waiting::Action action(waiting, atOnce);
        waiting.run([&] { gate.pass(); });
        log << "ended";
        EXPECT_FALSE(waiting.isServing());
    }
    EXPECT_EQ(log, QStringList({"shown", "served", "ended", "hidden"}));
}

TEST_F(AWait, showsNothingForWhatIsQuick)
{
    {
        const app::Waiting::Action action(waiting, never);
        waiting.run([] {});
        waiting.showWhenDue();
    }
    EXPECT_EQ(log, QStringList());
}

TEST_F(AWait, showsTheSignBetweenCallsWhenItIsDue)
{
    {
        const app::Waiting::Action action(waiting, atOnce);
        waiting.showWhenDue();
        waiting.showWhenDue();
    }
    waiting.showWhenDue(); // of no action
    EXPECT_EQ(log, QStringList({"shown", "hidden"}));
}

TEST_F(AWait, endsWithTheOutermostAction)
{
    {
        const app::Waiting::Action outer(waiting, atOnce);
        waiting.showWhenDue();
        {
            const app::Waiting::Action inner(waiting, never);
        }
        log << "inner ended";
    }
    EXPECT_EQ(log, QStringList({"shown", "inner ended", "hidden"}));
}

TEST_F(AWait, restsWhileTheUserIsAsked)
{
    {
        const app::Waiting::Action action(waiting, atOnce);
        waiting.showWhenDue();
        {
            const app::Waiting::Pause pause(waiting);
            log << "asked";
        }
        waiting.showWhenDue();
    }
    EXPECT_EQ(log, QStringList({"shown", "hidden", "asked", "shown", "hidden"}));
}

TEST_F(AWait, letsACallOutOfAServedEventWaitForTheOneBefore)
{
    gate.shut();
    QTimer::singleShot(0, [&] {
        gate.open();
        waiting.run([&] { log << "second"; });
    });
    {
        const app::Waiting::Action action(waiting, atOnce);
        waiting.run([&] {
            gate.pass();
            log << "first";
        });
    }
    EXPECT_EQ(log, QStringList({"shown", "first", "second", "hidden"}));
}

TEST_F(AWait, raisesWhatACallRaises)
{
    const app::Waiting::Action action(waiting, atOnce);
    EXPECT_THROW(waiting.run([] { throw std::runtime_error("gone"); }), std::runtime_error);
    bool ran = false;
    waiting.run([&] { ran = true; });
    EXPECT_TRUE(ran);
}
