#include "plan/RowColors.h"

#include "runtime/Numbers.h"
#include "runtime/RunTimeError.h"

#include <algorithm>

namespace plan
{
namespace
{

void raise(std::int16_t& component)
{
    component = static_cast<std::int16_t>(std::min(component + 175, 255));
}

std::size_t position(int index)
{
    if (index < 0 || index >= RowColors::kColors) {
        throw runtime::RunTimeError(runtime::ErrorNumber::SubscriptOutOfRange);
    }
    return static_cast<std::size_t>(index);
}

} // namespace

void RowColors::fillRandomly()
{
    reseed();
    for (form::Colour& color : m_RandomColors) {
        color = randomColor();
    }
}

form::Colour RowColors::randomColor()
{
    std::int16_t red = runtime::nearestInt16(m_random.next() * 255);
    std::int16_t green = runtime::nearestInt16(m_random.next() * 255);
    std::int16_t blue = runtime::nearestInt16(m_random.next() * 255);
    return MakeColor(red, green, blue);
}

form::Colour RowColors::MakeColor(std::int16_t& red, std::int16_t& green, std::int16_t& blue) const
{
    if (PaleColors) {
        raise(red);
        raise(green);
        raise(blue);
    }
    return form::Colour::fromRgb(red, green, blue);
}

form::Colour RowColors::at(int index) const
{
    return m_RandomColors.at(position(index));
}

void RowColors::set(int index, form::Colour color)
{
    m_RandomColors.at(position(index)) = color;
}

} // namespace plan
