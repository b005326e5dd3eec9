#include "runtime/RandomSource.h"

#include <chrono>

namespace runtime
{

RandomSource::RandomSource(std::optional<std::uint32_t> fixedSeed) : m_fixedSeed(fixedSeed)
{
    seedFromClock();
}

void RandomSource::seedFromClock()
{
    const auto ticks = std::chrono::system_clock::now().time_since_epoch().count();
    m_engine.seed(m_fixedSeed.value_or(static_cast<std::uint32_t>(ticks)));
}

double RandomSource::next()
{
    // Divided here, not by a library distribution: those differ between compilers.
    return static_cast<double>(m_engine()) / 4294967296.0;
}

} // namespace runtime
