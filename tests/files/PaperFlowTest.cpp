#include "files/PaperFlow.h"

#include <gtest/gtest.h>

using namespace files;

namespace
{

PaperBlock block(double height, bool keepsNext = false)
{
    return {height, [](QPainter&, double) {}, keepsNext, nullptr};
}

/// The heights of the blocks on each page with their tops: "30@0 40@30".
std::vector<std::string> pagesOf(const std::vector<PaperBlock>& blocks, double pageHeight = 100)
{
    std::vector<std::string> told;
    for (const auto& page : laidOut(blocks, pageHeight)) {
        QStringList placed;
        for (const PlacedBlock& each : page) {
            placed << QString("%1@%2").arg(each.block->height).arg(each.top);
        }
        told.push_back(placed.join(' ').toStdString());
    }
    return told;
}

using Pages = std::vector<std::string>;

} // namespace

TEST(PaperFlow, fillsPageAfterPage)
{
    EXPECT_EQ(pagesOf({block(30), block(70), block(60), block(50)}),
              Pages({"30@0 70@30", "60@0", "50@0"}));
}

TEST(PaperFlow, hasOnePageForNothing)
{
    EXPECT_EQ(pagesOf({}), Pages({""}));
}

TEST(PaperFlow, keepsAHeadingWithWhatFollows)
{
    EXPECT_EQ(pagesOf({block(60), block(10, true), block(20, true), block(11)}),
              Pages({"60@0", "10@0 20@10 11@30"}));
    EXPECT_EQ(pagesOf({block(60), block(10, true), block(20, true), block(10)}),
              Pages({"60@0 10@60 20@70 10@90"}));
}

TEST(PaperFlow, breaksWhatNoPageHolds)
{
    EXPECT_EQ(pagesOf({block(60, true), block(60, true), block(30)}),
              Pages({"60@0", "60@0 30@60"}));
    EXPECT_EQ(pagesOf({block(150), block(10)}), Pages({"150@0", "10@0"}));
}

TEST(PaperFlow, repeatsTheHeaderAboveWhatGoesOn)
{
    const auto header = std::make_shared<const PaperBlock>(block(20, true));
    PaperBlock row = block(30);
    row.header = header;
    // A title, the header itself, and four rows: one, two and one on a page.
    EXPECT_EQ(pagesOf({block(40), *header, row, row, row, row}),
              Pages({"40@0 20@40 30@60", "20@0 30@20 30@50", "20@0 30@20"}));
}
