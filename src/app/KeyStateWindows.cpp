#include "app/KeyState.h"

#include <windows.h>

#include <array>

namespace app
{
namespace
{

/// The keys on either side of the keyboard that one of these keys stands for.
std::array<int, 2> sidesOf(absences::VirtualKey key)
{
    return key == absences::VirtualKey::Shift ? std::array{VK_LSHIFT, VK_RSHIFT}
                                              : std::array{VK_LCONTROL, VK_RCONTROL};
}

class WindowsKeyState : public absences::AsyncKeyState
{
public:
    /// Either side is asked, too: Wine notes a press since the last question for the side alone,
    /// and Windows for both.
    [[nodiscard]] std::int16_t state(absences::VirtualKey key) override
    {
        int state = GetAsyncKeyState(static_cast<int>(key));
        for (const int side : sidesOf(key)) {
            state |= GetAsyncKeyState(side);
        }
        return static_cast<std::int16_t>(state);
    }
};

} // namespace

std::unique_ptr<absences::AsyncKeyState> makeKeyState()
{
    return std::make_unique<WindowsKeyState>();
}

} // namespace app
