#pragma once

#include "form/Colour.h"
#include "runtime/RandomSource.h"

#include <QString>
#include <array>
#include <cstdint>

namespace plan
{

/// The table of row colours: random ones, or those of a palette.
class RowColors
{
public:
    static constexpr int kColors = 256;

    explicit RowColors(runtime::RandomSource random = runtime::RandomSource()) : m_random(random) {}

    /// Fills the whole table with random colours, other ones on every run.
    void fillRandomly();
    /// Starts a new sequence of random numbers.
    void reseed() { m_random.seedFromClock(); }

    /// Draws three numbers, the first one for red, and makes a colour of them.
    [[nodiscard]] form::Colour randomColor();
    /// The colour of three components. While pale colours are on, each is raised by 175 and capped
    /// at 255, and the raised values are written back.
    [[nodiscard]] form::Colour MakeColor(std::int16_t& red, std::int16_t& green,
                                         std::int16_t& blue) const;

    /// Error: SubscriptOutOfRange outside 0 to 255.
    [[nodiscard]] form::Colour at(int index) const;
    void set(int index, form::Colour color);

    bool PaleColors = false;
    /// Full path of the palette in use, empty without one.
    QString PaletteName;
    /// False: the next refresh draws new random colours.
    bool RedrawMode = false;

private:
    runtime::RandomSource m_random;
    std::array<form::Colour, kColors> m_RandomColors{};
};

} // namespace plan
