#include "demo/Draw.h"

namespace demo
{
namespace
{

std::mt19937 seededEngine(std::uint32_t seed, Topic topic, std::uint32_t part)
{
    std::seed_seq sequence{seed, static_cast<std::uint32_t>(topic), part};
    return std::mt19937(sequence);
}

} // namespace

Draw::Draw(std::uint32_t seed, Topic topic, std::uint32_t part)
    : m_engine(seededEngine(seed, topic, part))
{
}

int Draw::below(int bound)
{
    // Scales the engine's 32 bits to the bound. The tiny bias does not matter here.
    const std::uint64_t drawn = m_engine() & 0xFFFFFFFFU;
    return static_cast<int>((drawn * static_cast<std::uint64_t>(bound)) >> 32U);
}

} // namespace demo
