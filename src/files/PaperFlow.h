#pragma once

#include <QPainter>
#include <functional>
#include <memory>
#include <vector>

namespace files
{

/// Something that takes the width of a page and is not broken.
struct PaperBlock {
    double height = 0; ///< pixels of the paper
    std::function<void(QPainter&, double top)> draw;
    bool keepsNext = false; ///< stands on one page with the next one
    /// Stands above it where it begins a page; null for nothing.
    std::shared_ptr<const PaperBlock> header;
};

struct PlacedBlock {
    const PaperBlock* block = nullptr; ///< one of those that were laid out, or a header of theirs
    double top = 0;                    ///< pixels from the upper margin
};

/// Lays blocks below each other onto pages of that height; at least one page. What is kept together
/// is, as long as a page holds it. The blocks must outlive the pages.
[[nodiscard]] std::vector<std::vector<PlacedBlock>> laidOut(const std::vector<PaperBlock>& blocks,
                                                            double pageHeight);

} // namespace files
