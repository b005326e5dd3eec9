#include "app/KeyState.h"

#include <windows.h>

namespace app
{
namespace
{

class WindowsKeyState : public absences::AsyncKeyState
{
public:
    [[nodiscard]] std::int16_t state(absences::VirtualKey key) override
    {
        return GetAsyncKeyState(static_cast<int>(key));
    }
};

} // namespace

std::unique_ptr<absences::AsyncKeyState> makeKeyState()
{
    return std::make_unique<WindowsKeyState>();
}

} // namespace app
