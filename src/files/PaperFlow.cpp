#include "files/PaperFlow.h"

#include <algorithm>

namespace files
{
namespace
{

/// Of a block and those that it keeps with it; of the block alone where no page holds them all.
double keptHeight(const std::vector<PaperBlock>& blocks, std::size_t first, double pageHeight)
{
    double height = blocks[first].height;
    for (std::size_t index = first; blocks[index].keepsNext && index + 1 < blocks.size(); ++index) {
        height += blocks[index + 1].height;
    }
    return height > pageHeight ? blocks[first].height : height;
}

} // namespace

std::vector<std::vector<PlacedBlock>> laidOut(const std::vector<PaperBlock>& blocks,
                                              double pageHeight)
{
    std::vector<std::vector<PlacedBlock>> pages(1);
    double top = 0;
    const auto place = [&pages, &top](const PaperBlock& block) {
        pages.back().push_back({&block, top});
        top += block.height;
    };
    for (std::size_t index = 0; index < blocks.size(); ++index) {
        if (top > 0 && top + keptHeight(blocks, index, pageHeight) > pageHeight) {
            pages.emplace_back();
            top = 0;
            if (blocks[index].header) {
                place(*blocks[index].header);
            }
        }
        place(blocks[index]);
    }
    return pages;
}

} // namespace files
