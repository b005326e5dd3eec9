#include "paint/PlanGrid.h"

#include "paint/Canvas.h"
#include "paint/CellBox.h"
#include "plan/RoomRows.h"
#include "support/RuntimeMatchers.h"

#include <algorithm>

using form::Colour;
using paint::GridLine;
using paint::planGridLines;
using paint::windowGridLines;

namespace
{

constexpr Colour blue = Colour::fromRgb(0, 0, 180);
constexpr Colour green = Colour::fromRgb(0, 180, 0);
constexpr Colour faintGreen = Colour::fromRgb(200, 236, 200);
constexpr Colour grey = Colour::fromRgb(125, 125, 125);

/// Ticks 1600 twips apart from 1620 on, below a header of 300 twips; rows of 300 twips from 345
/// on. The grid ends with row 2, at 345 + 2 * 368 + 300 = 1381.
class PlanGrid : public testing::Test
{
protected:
    PlanGrid()
    {
        for (std::size_t tick = 0; tick < form.Label1.size(); ++tick) {
            form.Label1.at(tick).place = {1620 + 1600 * static_cast<int>(tick), 0, 600, 300};
        }
        form.Salle[0].place = {0, 345, 1500, 300};
        plan::PlaceRoomRows(form);
        form.ChkGrille.setChecked(true);
    }

    [[nodiscard]] static std::vector<GridLine> of(const std::vector<GridLine>& lines, Colour color)
    {
        std::vector<GridLine> chosen;
        std::copy_if(lines.begin(), lines.end(), std::back_inserter(chosen),
                     [&](const GridLine& line) { return line.color == color; });
        return chosen;
    }

    form::PlanForm form;
};

} // namespace

TEST_F(PlanGrid, hasABlueLineAtEveryTick)
{
    const std::vector<GridLine> lines = of(planGridLines(form, 2, false), blue);
    ASSERT_EQ(lines.size(), 12U);
    EXPECT_EQ(lines[0], (GridLine{1620, 300, 1620, 1381, blue}));
    EXPECT_EQ(lines[11], (GridLine{19220, 300, 19220, 1381, blue}));
}

TEST_F(PlanGrid, coversTheHoursOfTheWindowAndNoOthers)
{
    // From 7h30 to 20h00, 1620 - 800 and 1620 + 12 * 1600.
    const std::vector<GridLine> lines = windowGridLines(form, 2, {820, 20820});
    const std::vector<GridLine> hours = of(lines, blue);
    ASSERT_EQ(hours.size(), 13U);
    EXPECT_EQ(hours[0], (GridLine{1620, 300, 1620, 1381, blue}));
    EXPECT_EQ(hours[12], (GridLine{20820, 300, 20820, 1381, blue}));
    const std::vector<GridLine> quarters = of(lines, faintGreen);
    ASSERT_EQ(quarters.size(), 38U); // two before 8h00, three in each of twelve hours
    EXPECT_EQ(quarters[0].x1, 820);
    EXPECT_EQ(quarters[2].x1, 2020);
    const std::vector<GridLine> rows = of(lines, grey);
    ASSERT_EQ(rows.size(), 2U);
    EXPECT_EQ(rows[0], (GridLine{820, 679, 20820, 679, grey}));
}

TEST_F(PlanGrid, ofTheWindowIsThereOnlyWhereItIsTicked)
{
    EXPECT_TRUE(windowGridLines(form, 30, {1620, 3220}).empty());
    form.ChkGrille.setChecked(false);
    EXPECT_TRUE(windowGridLines(form, 2, {1620, 3220}).empty());
}

TEST_F(PlanGrid, hasQuartersInTheWindowThatAreGreenAndFaint)
{
    EXPECT_GT(faintGreen.green(), faintGreen.red());
    EXPECT_GT(faintGreen.green(), faintGreen.blue());
    EXPECT_LT(paint::contrastRatio(faintGreen, Colour::fromRgb(255, 255, 255)), 1.5);
    EXPECT_GT(paint::contrastRatio(faintGreen, Colour::fromRgb(255, 255, 255)), 1.2);
}

TEST_F(PlanGrid, hasThreeGreenLinesInsideEveryHour)
{
    const std::vector<GridLine> lines = of(planGridLines(form, 2, false), green);
    ASSERT_EQ(lines.size(), 36U);
    EXPECT_EQ(lines[0], (GridLine{2020, 300, 2020, 1381, green}));
    EXPECT_EQ(lines[1], (GridLine{2420, 300, 2420, 1381, green}));
    EXPECT_EQ(lines[2], (GridLine{2820, 300, 2820, 1381, green}));
    EXPECT_EQ(lines[35], (GridLine{20420, 300, 20420, 1381, green}));
}

TEST_F(PlanGrid, separatesTheRowsByGreyLinesOnTheScreen)
{
    const std::vector<GridLine> lines = of(planGridLines(form, 2, false), grey);
    ASSERT_EQ(lines.size(), 2U);
    EXPECT_EQ(lines[0], (GridLine{1620, 679, 20820, 679, grey})); // in the middle of the gap
    EXPECT_EQ(lines[1], (GridLine{1620, 1047, 20820, 1047, grey}));
}

TEST_F(PlanGrid, startsEveryHourAtItsTick)
{
    // Paper: ticks at thirds of a twip, rounded each by itself.
    form.Label1[1].place.left = 1620 + 1133;
    form.Label1[11].place.left = 1620 + 12467;
    const std::vector<GridLine> lines = planGridLines(form, 2, true);
    EXPECT_EQ(of(lines, blue)[11], (GridLine{14087, 300, 14087, 1381, blue}));
    EXPECT_EQ(of(lines, green)[33], (GridLine{14370, 300, 14370, 1381, green})); // + 1133 / 4
}

TEST_F(PlanGrid, hasNoGreyLinesOnThePrinter)
{
    const std::vector<GridLine> lines = planGridLines(form, 2, true);
    EXPECT_EQ(lines.size(), 48U);
    EXPECT_TRUE(of(lines, grey).empty());
}

TEST_F(PlanGrid, hasNoLinesWhileItIsNotTicked)
{
    form.ChkGrille.setChecked(false);
    EXPECT_TRUE(planGridLines(form, 2, false).empty());
    EXPECT_TRUE(planGridLines(form, 2, true).empty());
}

TEST_F(PlanGrid, hasNoLinesWithoutRows)
{
    EXPECT_TRUE(planGridLines(form, -1, false).empty());
    EXPECT_TRUE(planGridLines(form, 30, false).empty());
}

TEST_F(PlanGrid, isDrawnInTheTargetsPixels)
{
    test::Canvas canvas(500, 200);
    paint::DrawingTarget target;
    target.TargetXOffset = 150;
    canvas.draw([&](QPainter& painter) {
        DrawPlanGrid(painter, target, {{1500, 300, 1500, 1500, blue}});
    });
    EXPECT_EQ(canvas.touched(), QRect(250, 20, 1, 81));
    EXPECT_EQ(canvas.at(250, 60), QColor(0, 0, 180));
}
