#include "absences/KeyStateTracker.h"

namespace absences
{

void KeyStateTracker::press(VirtualKey key, PhysicalKey physicalKey)
{
    Key& pressed = record(key);
    pressed.held.insert(physicalKey);
    pressed.pressed = true;
}

void KeyStateTracker::release(VirtualKey key, PhysicalKey physicalKey)
{
    Key& released = record(key);
    if (released.held.erase(physicalKey) == 0) {
        released.heldUnseen = false;
    }
}

void KeyStateTracker::observe(VirtualKey key, bool down)
{
    Key& observed = record(key);
    if (!down) {
        observed.held.clear();
        observed.heldUnseen = false;
    } else if (!observed.isDown()) {
        observed.heldUnseen = true;
        observed.pressed = true;
    }
}

std::int16_t KeyStateTracker::state(VirtualKey key)
{
    Key& queried = record(key);
    const std::int16_t whenPressed = queried.isDown() ? kDownAndPressed : kPressed;
    const std::int16_t otherwise = queried.isDown() ? kDown : std::int16_t{0};
    const std::int16_t answer = queried.pressed ? whenPressed : otherwise;
    queried.pressed = false;
    return answer;
}

} // namespace absences
