#pragma once

#include <cstdint>

namespace form
{

/// A colour in the platform's order: red in the low byte, then green, then blue.
struct Colour {
    std::uint32_t value = 0;

    [[nodiscard]] static constexpr Colour fromRgb(int red, int green, int blue)
    {
        return {
            static_cast<std::uint32_t>((red & 0xff) | (green & 0xff) << 8 | (blue & 0xff) << 16)};
    }
    [[nodiscard]] constexpr int red() const { return static_cast<int>(value & 0xff); }
    [[nodiscard]] constexpr int green() const { return static_cast<int>(value >> 8 & 0xff); }
    [[nodiscard]] constexpr int blue() const { return static_cast<int>(value >> 16 & 0xff); }

    friend constexpr bool operator==(Colour, Colour) = default;
};

} // namespace form
