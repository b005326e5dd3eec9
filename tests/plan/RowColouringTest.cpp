#include "plan/PlanDesk.h"
#include "support/RuntimeMatchers.h"

using form::Colour;
using test::PlanDesk;

namespace
{

/// Six drawn rows.
class RowColouring : public testing::Test
{
protected:
    std::vector<Colour> draw()
    {
        desk.draw();
        std::vector<Colour> colors;
        for (const plan::PlanRow& row : desk.drawn()) {
            colors.push_back(row.color);
        }
        return colors;
    }

    PlanDesk desk{7};
};

} // namespace

TEST_F(RowColouring, drawsNewRandomColoursAtTheFirstRefresh)
{
    const Colour before = desk.colors.at(7);
    const std::vector<Colour> colors = draw();
    for (int row = 1; row <= 6; ++row) {
        EXPECT_EQ(desk.colors.at(row), colors[static_cast<std::size_t>(row - 1)]) << row;
    }
    EXPECT_EQ(desk.colors.at(7), before);
    EXPECT_TRUE(desk.colors.RedrawMode);
}

TEST_F(RowColouring, showsTheRandomColoursTwoRowsFurtherUpAtTheSecond)
{
    const std::vector<Colour> first = draw();
    const std::vector<Colour> second = draw();
    for (std::size_t row = 0; row + 2 < first.size(); ++row) {
        EXPECT_EQ(second[row], first[row + 2]) << row;
    }
    EXPECT_EQ(second[4], desk.colors.at(7));
    EXPECT_EQ(draw(), second); // and so from then on
}

TEST_F(RowColouring, takesTheColoursOfAPaletteFromItsThirdEntryOn)
{
    desk.colors.PaletteName = "/Styles/Bleu.mpl";
    desk.colors.set(3, Colour::fromRgb(1, 2, 3));
    desk.colors.set(8, Colour::fromRgb(4, 5, 6));
    const std::vector<Colour> colors = draw();
    EXPECT_EQ(colors[0], Colour::fromRgb(1, 2, 3));
    EXPECT_EQ(colors[5], Colour::fromRgb(4, 5, 6));
    EXPECT_EQ(desk.colors.at(3), Colour::fromRgb(1, 2, 3)); // nothing is drawn into the table
}

TEST_F(RowColouring, isLightGreyWithoutColours)
{
    PlanDesk::tick(desk.form.Colorer, false);
    for (const Colour color : draw()) {
        EXPECT_EQ(color, Colour::fromRgb(215, 215, 215));
    }
}

TEST_F(RowColouring, coversTheLabelsOfTheRow)
{
    const std::vector<Colour> colors = draw();
    EXPECT_EQ(desk.form.Salle[2].backColor, colors[1]);
    EXPECT_EQ(desk.form.Cap[2].backColor, colors[1]);
}

TEST_F(RowColouring, isPaleWhilePaleColoursAreOn)
{
    draw();
    desk.colors.PaleColors = true;
    desk.colors.RedrawMode = false;
    for (const Colour color : draw()) {
        EXPECT_GE(color.red(), 175);
        EXPECT_GE(color.green(), 175);
        EXPECT_GE(color.blue(), 175);
    }
}
