#include "files/PaperTable.h"

#include <QImage>
#include <gtest/gtest.h>
#include <numeric>

using namespace files;

namespace
{

TableSection sectionOf(const std::vector<QStringList>& rows)
{
    TableSection section{"Liste", {}, {}, {{"Nom"}, {"Quoi", ColumnLook::Sentence}}, {}};
    for (const QStringList& texts : rows) {
        TableRow& row = section.rows.emplace_back();
        for (const QString& text : texts) {
            row.push_back({text, std::nullopt});
        }
    }
    return section;
}

class TableOnPaper : public testing::Test
{
protected:
    PaperTable table(const TableSection& section) { return {section, 5000, paper}; }

    QImage paper{10, 10, QImage::Format_RGB32};
};

} // namespace

TEST_F(TableOnPaper, fillsTheWidth)
{
    const std::vector<double> narrow = table(sectionOf({{"a", "b"}})).widths();
    EXPECT_NEAR(narrow[0] + narrow[1], 5000, 0.01);
    const std::vector<double> wide =
        table(sectionOf({{QString(5000, 'm'), QString(5000, 'm')}})).widths();
    EXPECT_NEAR(wide[0] + wide[1], 5000, 0.01);
}

TEST_F(TableOnPaper, givesAShortColumnWhatItNeedsBesideALongOne)
{
    const QString name = "Salle de Conférences 1";
    const double alone = table(sectionOf({{name, "x"}})).widths()[0];
    const PaperTable both = table(sectionOf({{name, QString("mot ").repeated(200)}}));
    EXPECT_LT(both.widths()[0], alone); // no more than it needs
    EXPECT_GT(both.blocks()[1].height, both.blocks()[0].height);
    // The name alone would need one line, as the header does.
    const PaperTable one = table(sectionOf({{name, "mot"}, {"x", QString("mot ").repeated(200)}}));
    EXPECT_NEAR(one.blocks()[1].height, one.blocks()[0].height, 1);
}

TEST_F(TableOnPaper, repeatsItsHeaderAndKeepsItWithTheFirstRow)
{
    const std::vector<PaperBlock> blocks = table(sectionOf({{"a", "b"}, {"c", "d"}})).blocks();
    ASSERT_EQ(blocks.size(), 3U);
    EXPECT_TRUE(blocks[0].keepsNext);
    EXPECT_FALSE(blocks[1].keepsNext);
    ASSERT_TRUE(blocks[2].header);
    EXPECT_EQ(blocks[2].header->height, blocks[0].height);
}

TEST_F(TableOnPaper, comesInPiecesWhereARowIsTooLongForAPage)
{
    const std::vector<PaperBlock> blocks =
        table(sectionOf({{"a", QString("mot ").repeated(20000)}})).blocks();
    ASSERT_GT(blocks.size(), 3U);
    for (const PaperBlock& block : blocks) {
        EXPECT_LT(block.height, 5000);
    }
}

TEST_F(TableOnPaper, staysTogetherAsAGrid)
{
    TableSection grid{"Grille", {}, {}, {{"Créneau"}, {"Lundi", ColumnLook::Shade}}, {}};
    grid.rows = {{{"1", {}}, {"50 %", 0.5}}, {{"2", {}}, {"20 %", 0.2}}};
    const std::vector<PaperBlock> blocks = table(grid).blocks();
    EXPECT_TRUE(blocks[1].keepsNext);
    EXPECT_FALSE(blocks[2].keepsNext);
}
