#include "absences/HeldKey.h"

#include <gtest/gtest.h>

using namespace absences;

TEST(HeldKey, isPressedAnewAtEachQuestionAndNoOtherKeyIs)
{
    HeldKey keys(VirtualKey::Ctrl);
    EXPECT_EQ(keys.state(VirtualKey::Ctrl), AsyncKeyState::kDownAndPressed);
    EXPECT_EQ(keys.state(VirtualKey::Ctrl), AsyncKeyState::kDownAndPressed);
    EXPECT_EQ(keys.state(VirtualKey::Shift), 0);
}
