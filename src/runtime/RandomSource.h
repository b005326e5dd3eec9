#pragma once

#include <cstdint>
#include <optional>
#include <random>

namespace runtime
{

/// Random numbers for the row colours. With a fixed seed every seeding starts the same sequence,
/// so that the same input gives the same bytes; without one the clock decides.
class RandomSource
{
public:
    explicit RandomSource(std::optional<std::uint32_t> fixedSeed = std::nullopt);

    /// Starts a new sequence, from the clock or from the fixed seed.
    void seedFromClock();

    /// The next number in [0, 1).
    [[nodiscard]] double next();

private:
    std::optional<std::uint32_t> m_fixedSeed;
    std::mt19937 m_engine;
};

} // namespace runtime
