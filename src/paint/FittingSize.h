#pragma once

#include <concepts>
#include <optional>

namespace paint
{

/// How every text is shrunk to its place: the first size, from `largest` down to `smallest`, that
/// `fits` takes; none when even the smallest is too large. In the unit of whoever asks: pixels on
/// the screen, points on paper.
template <std::predicate<int> Fits>
[[nodiscard]] std::optional<int> fittingSize(int largest, int smallest, Fits fits)
{
    for (int size = largest; size >= smallest; --size) {
        if (fits(size)) {
            return size;
        }
    }
    return std::nullopt;
}

} // namespace paint
