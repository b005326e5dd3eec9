#pragma once

#include "absences/AsyncKeyState.h"

namespace absences
{

/// A keyboard on which one key is held and was pressed anew before each query: the gesture with
/// this key, without the key.
class HeldKey : public AsyncKeyState
{
public:
    explicit HeldKey(VirtualKey key) : m_key(key) {}

    [[nodiscard]] std::int16_t state(VirtualKey key) override
    {
        return key == m_key ? kDownAndPressed : std::int16_t{0};
    }

private:
    VirtualKey m_key;
};

} // namespace absences
