#pragma once

#include <cstdint>

namespace absences
{

/// The keys that the gestures ask about, with the platform's virtual key numbers. Left and right
/// keys count alike.
enum class VirtualKey : int { Shift = 16, Ctrl = 17 };

/// The keyboard's asynchronous state, as the Windows function of this name gives it.
class AsyncKeyState
{
public:
    static constexpr std::int16_t kDown = -32768; ///< 0x8000: down now
    static constexpr std::int16_t kPressed = 1;   ///< pressed since the previous query
    /// 0x8001: down now and pressed since the previous query. A key held over several queries
    /// reads so only once.
    static constexpr std::int16_t kDownAndPressed = -32767;

    virtual ~AsyncKeyState() = default;

    /// Each query forgets the presses of this key that came before it.
    [[nodiscard]] virtual std::int16_t state(VirtualKey key) = 0;
};

} // namespace absences
