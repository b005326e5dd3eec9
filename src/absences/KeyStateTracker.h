#pragma once

#include "absences/AsyncKeyState.h"

#include <cstdint>
#include <set>

namespace absences
{

/// Keeps the asynchronous key state where the system has none, from what the window learns of the
/// keyboard. It is told of presses and releases, and it is shown whether a key is down whenever
/// that is known from elsewhere: the window does not see what happens while it lacks the focus.
class KeyStateTracker : public AsyncKeyState
{
public:
    /// Tells the left key from the right one; any number, the same at press and release.
    using PhysicalKey = std::uint32_t;

    /// A press by the user's hand; the repetitions of a held key go to `observe`.
    void press(VirtualKey key, PhysicalKey physicalKey);
    void release(VirtualKey key, PhysicalKey physicalKey);

    /// The key is known to be down or up. Down although no press was seen counts as a press: it
    /// came when the window did not have the focus.
    void observe(VirtualKey key, bool down);

    [[nodiscard]] std::int16_t state(VirtualKey key) override;

private:
    struct Key {
        std::set<PhysicalKey> held; ///< seen being pressed and not released
        bool heldUnseen = false;    ///< down, pressed where nobody saw which one it was
        bool pressed = false;       ///< since the previous query

        [[nodiscard]] bool isDown() const { return heldUnseen || !held.empty(); }
    };

    [[nodiscard]] Key& record(VirtualKey key) { return key == VirtualKey::Ctrl ? m_ctrl : m_shift; }

    Key m_shift;
    Key m_ctrl;
};

} // namespace absences
