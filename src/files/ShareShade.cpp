#include "files/ShareShade.h"

#include <algorithm>
#include <cmath>

namespace files
{
namespace
{

constexpr form::Colour kFull = form::Colour::fromRgb(0x4a, 0x86, 0xd0);
constexpr int kWhite = 255;

int mixed(int full, double share)
{
    return static_cast<int>(std::lround(kWhite + (full - kWhite) * share));
}

} // namespace

form::Colour shadeOf(double share)
{
    const double part = std::clamp(share, 0.0, 1.0);
    return form::Colour::fromRgb(mixed(kFull.red(), part), mixed(kFull.green(), part),
                                 mixed(kFull.blue(), part));
}

} // namespace files
