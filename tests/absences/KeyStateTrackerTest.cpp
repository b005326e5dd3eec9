#include "absences/KeyStateTracker.h"

#include <gtest/gtest.h>

using absences::KeyStateTracker;
using absences::VirtualKey;

namespace
{

// The four answers, as the platform's function documents them.
constexpr std::int16_t up = 0;
constexpr std::int16_t pressedSince = 1;
constexpr std::int16_t down = -32768;
constexpr std::int16_t downAndPressed = -32767;

constexpr VirtualKey shift = VirtualKey::Shift;
constexpr VirtualKey ctrl = VirtualKey::Ctrl;

// Two keys of a keyboard that count as Shift.
constexpr KeyStateTracker::PhysicalKey leftKey = 50;
constexpr KeyStateTracker::PhysicalKey rightKey = 62;

} // namespace

TEST(KeyStateTracker, knowsNoPressAtFirst)
{
    KeyStateTracker keys;
    EXPECT_EQ(keys.state(shift), up);
    EXPECT_EQ(keys.state(ctrl), up);
}

TEST(KeyStateTracker, tellsAPressOnlyAtTheFirstQuery)
{
    KeyStateTracker keys;
    keys.press(shift, leftKey);
    EXPECT_EQ(keys.state(shift), downAndPressed);
    EXPECT_EQ(keys.state(shift), down);
    EXPECT_EQ(keys.state(shift), down);
}

TEST(KeyStateTracker, remembersAPressThatIsOverUntilTheNextQuery)
{
    KeyStateTracker keys;
    keys.press(shift, leftKey);
    keys.release(shift, leftKey);
    EXPECT_EQ(keys.state(shift), pressedSince);
    EXPECT_EQ(keys.state(shift), up);
}

TEST(KeyStateTracker, tellsASecondPress)
{
    KeyStateTracker keys;
    keys.press(shift, leftKey);
    static_cast<void>(keys.state(shift));
    keys.release(shift, leftKey);
    keys.press(shift, leftKey);
    EXPECT_EQ(keys.state(shift), downAndPressed);
}

TEST(KeyStateTracker, tellsAPressWhoseReleaseNobodySaw)
{
    KeyStateTracker keys;
    keys.press(shift, leftKey);
    static_cast<void>(keys.state(shift));
    keys.press(shift, leftKey);
    EXPECT_EQ(keys.state(shift), downAndPressed);
}

TEST(KeyStateTracker, keepsTheTwoKeysApart)
{
    KeyStateTracker keys;
    keys.press(ctrl, leftKey);
    EXPECT_EQ(keys.state(shift), up);
    EXPECT_EQ(keys.state(ctrl), downAndPressed);
    keys.press(shift, rightKey);
    EXPECT_EQ(keys.state(ctrl), down);
    EXPECT_EQ(keys.state(shift), downAndPressed);
}

TEST(KeyStateTracker, takesAKeyThatIsDownUnseenForAPress)
{
    KeyStateTracker keys;
    keys.observe(shift, true);
    EXPECT_EQ(keys.state(shift), downAndPressed);
    keys.observe(shift, true);
    EXPECT_EQ(keys.state(shift), down);
}

TEST(KeyStateTracker, learnsNothingNewFromAKeyItHasSeenBeingPressed)
{
    KeyStateTracker keys;
    keys.press(shift, leftKey);
    static_cast<void>(keys.state(shift));
    keys.observe(shift, true); // as from an auto-repeat
    EXPECT_EQ(keys.state(shift), down);
}

TEST(KeyStateTracker, believesThatAKeyIsUpAlthoughNoReleaseWasSeen)
{
    KeyStateTracker keys;
    keys.press(shift, leftKey);
    static_cast<void>(keys.state(shift));
    keys.observe(shift, false);
    EXPECT_EQ(keys.state(shift), up);
    keys.observe(shift, true);
    EXPECT_EQ(keys.state(shift), downAndPressed);
}

TEST(KeyStateTracker, endsAPressNobodySawWithTheReleaseOfItsKey)
{
    KeyStateTracker keys;
    keys.observe(shift, true);
    static_cast<void>(keys.state(shift));
    keys.release(shift, leftKey);
    EXPECT_EQ(keys.state(shift), up);
}

TEST(KeyStateTracker, staysDownWhileOneOfTwoKeysIsHeld)
{
    KeyStateTracker keys;
    keys.press(shift, leftKey);
    keys.press(shift, rightKey);
    keys.release(shift, leftKey);
    EXPECT_EQ(keys.state(shift), downAndPressed);
    keys.release(shift, rightKey);
    EXPECT_EQ(keys.state(shift), up);
}
