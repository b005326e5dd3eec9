#include "app/PlanPicture.h"

#include "plan/PlanDesk.h"

#include <QImage>

using app::PlanPicture;
using test::PlanDesk;

namespace
{

const QColor yellow(250, 230, 120);
const QColor band(246, 247, 250);
const QColor white(255, 255, 255);

/// Rooms R01 to R03, the first one taken from 8h00 on, on a screen of 15 twips a pixel. All rows
/// are yellow. The axis begins at 108 pixels and ends with 19h00, 17600 twips further right, at
/// 1281; row 1 lies from 47.53 to 67.53.
class ThePicture : public testing::Test
{
protected:
    ThePicture()
    {
        desk.colors.PaletteName = "Jaune";
        for (int row = 1; row <= 3; ++row) {
            desk.colors.set(row + 2, form::Colour::fromRgb(250, 230, 120));
        }
        desk.meeting(1, 1);
        desk.draw();
    }

    [[nodiscard]] paint::PlanScene scene() const
    {
        return paint::windowSceneOf(desk.state, desk.engine.content(), target, {1620, 19220});
    }
    PlanPicture::Change draw(double ratio = 1) { return picture.draw(scene(), {1500, 200}, ratio); }
    [[nodiscard]] QColor at(int x, int y) const
    {
        return picture.plan().toImage().pixelColor(x, y);
    }

    static constexpr int row3 = (345 + 3 * 368 + 40) / 15;
    PlanDesk desk{4};
    paint::DrawingTarget target;
    PlanPicture picture;
};

} // namespace

TEST_F(ThePicture, isAsLargeAsItIsAskedFor)
{
    draw();
    EXPECT_EQ(picture.plan().size(), QSize(1500, 200));
    EXPECT_EQ(picture.totals().size(), QSize(1500, 26));
    draw(2);
    EXPECT_EQ(picture.plan().size(), QSize(3000, 400));
    EXPECT_EQ(picture.plan().devicePixelRatio(), 2);
    EXPECT_EQ(picture.totals().size(), QSize(3000, 52));
}

TEST_F(ThePicture, isWhiteWhereBoxesMayLieAndPaleAroundThem)
{
    draw();
    EXPECT_EQ(at(600, 57), white);
    EXPECT_EQ(at(600, 195), white); // down to its foot
    EXPECT_EQ(at(105, 100), white); // 4 pixels before the axis
    EXPECT_EQ(at(102, 120), band);
    EXPECT_EQ(at(1284, 100), white);
    EXPECT_EQ(at(1287, 100), band);
    EXPECT_EQ(at(1490, 100), band);
    EXPECT_EQ(at(600, 24), white); // from row 0 on, at 23
    EXPECT_EQ(at(600, 21), band);
}

TEST_F(ThePicture, holdsTicksBoxesNamesAndPlaces)
{
    desk.form.ChkGrille.setChecked(true);
    draw();
    EXPECT_EQ(at(108, 18), QColor(40, 50, 70));
    EXPECT_EQ(at(112, 50), yellow);              // the box
    EXPECT_EQ(at(1, 50), yellow);                // the room
    EXPECT_EQ(at(1416, 50), yellow);             // its places
    EXPECT_EQ(at(1, 25), QColor(236, 236, 236)); // row 0
    EXPECT_EQ(at(428, 90), QColor(0, 0, 180));   // 11h00 on the grid
}

TEST_F(ThePicture, holdsTheTotalsInABandOfTheirOwn)
{
    desk.form.Tot[1].visible = true; // 268 to 427
    desk.form.Tot[1].caption = "30";
    desk.totals.isOld = false;
    draw();
    const QImage totals = picture.totals().toImage();
    EXPECT_EQ(totals.pixelColor(270, 4), white);
    EXPECT_EQ(totals.pixelColor(268, 10), QColor(40, 50, 70));
    EXPECT_EQ(totals.pixelColor(300, 2), QColor(40, 50, 70)); // two pixels below the band's top
    EXPECT_EQ(totals.pixelColor(300, 1), band);
    EXPECT_EQ(totals.pixelColor(200, 10), band);
    EXPECT_EQ(totals.pixelColor(300, 24), band);
}

TEST_F(ThePicture, takesOnlyTheRowsAnewThatHaveChanged)
{
    EXPECT_EQ(draw().plan, QRect(0, 0, 1500, 200));
    EXPECT_TRUE(draw().plan.isEmpty());
    desk.meeting(3, 1);
    desk.engine.refreshPlan();
    // Row 3 lies from 345 + 3 * 368 twips on, at 96.6 to 116.6, and its edges.
    EXPECT_EQ(draw().plan, QRect(0, 95, 1500, 23));
    EXPECT_EQ(at(112, row3 + 1), yellow);
    EXPECT_EQ(at(112, 50), yellow);
    desk.form.Salle[1].backColor = form::Colour::fromRgb(0, 200, 200);
    EXPECT_EQ(draw().plan, QRect(0, 46, 1500, 23));
    EXPECT_EQ(at(1, 50), QColor(0, 200, 200));
    desk.rows = {};
    desk.draw();
    EXPECT_EQ(draw().plan, QRegion(0, 46, 1500, 23) + QRegion(0, 95, 1500, 23));
    EXPECT_EQ(at(112, row3 + 1), white);
}

TEST_F(ThePicture, takesTheTotalsAnewWhenTheyHaveChanged)
{
    EXPECT_TRUE(draw().totals);
    EXPECT_FALSE(draw().totals);
    desk.form.Tot[1].visible = true;
    desk.totals.isOld = false;
    const PlanPicture::Change change = draw();
    EXPECT_TRUE(change.totals);
    EXPECT_TRUE(change.plan.isEmpty());
    EXPECT_EQ(picture.totals().toImage().pixelColor(270, 4), white);
}

TEST_F(ThePicture, isTakenWholeWhereARowIsNotAllThatHasChanged)
{
    const QRegion all(0, 0, 1500, 200);
    std::ignore = draw();
    desk.form.ChkGrille.design(true);
    EXPECT_EQ(draw().plan, all);
    desk.layout.CellTextFormat = plan::CellLayout::kWordBreak;
    EXPECT_EQ(draw().plan, all);
    desk.form.Salle[3].place.top += 15;
    EXPECT_EQ(draw().plan, all);
    EXPECT_EQ(draw(2).plan, all);
    EXPECT_TRUE(draw(2).plan.isEmpty());
    EXPECT_EQ(draw(1).plan, all);
}

// Rows that touch each other, at whatever scale: what is drawn row by row is what is drawn at once.
TEST_F(ThePicture, isTheSameHoweverItCameAbout)
{
    desk.form.ChkGrille.design(true);
    for (const int twipsPerPixel : {9, 15, 31}) {
        target.TargetTwipsPerPixelX = target.TargetTwipsPerPixelY = twipsPerPixel;
        std::ignore = draw(1.5);
        for (int step = 0; step < 12; ++step) {
            const int row = 1 + step % 3;
            desk.meeting(row, 1 + step % 5).set("Classe", step % 2 == 0 ? "L1" : "L2 INFO");
            desk.form.Salle[static_cast<std::size_t>(row)].backColor =
                form::Colour::fromRgb(20 * step, 200, 100);
            desk.form.Salle[0].caption = QString("R%1").arg(step); // the room before the page
            desk.engine.refreshPlan();
            EXPECT_FALSE(draw(1.5).plan.contains(QPoint(1, 1))) << step; // the ticks stay
            PlanPicture whole;
            std::ignore = whole.draw(scene(), {1500, 200}, 1.5);
            ASSERT_EQ(picture.plan().toImage(), whole.plan().toImage()) << step << twipsPerPixel;
            ASSERT_EQ(picture.totals().toImage(), whole.totals().toImage()) << step;
        }
    }
}
