#pragma once

#include "absences/AsyncKeyState.h"

namespace test
{

/// A keyboard on which one key is down and was pressed anew before each query.
class PressedKey : public absences::AsyncKeyState
{
public:
    explicit PressedKey(absences::VirtualKey key) : m_key(key) {}
    std::int16_t state(absences::VirtualKey key) override
    {
        return key == m_key ? kDownAndPressed : std::int16_t{0};
    }

private:
    absences::VirtualKey m_key;
};

} // namespace test
