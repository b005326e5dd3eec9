#include "files/PictureExport.h"

#include "paint/Canvas.h"
#include "plan/PlanDesk.h"
#include "support/RuntimeMatchers.h"

#include <QImage>

using test::PlanDesk;

namespace
{

const QColor yellow(250, 230, 120);
const QColor white(255, 255, 255);

/// Rooms R01 and R02, R01 taken from 8h00 on, all rows yellow. The plan stands 12 pixels from the
/// left and 64 + 12 from the top; a pixel is 15 twips.
class ThePictureFile : public testing::Test
{
protected:
    ThePictureFile()
    {
        desk.colors.PaletteName = "Jaune";
        for (int row = 1; row <= 2; ++row) {
            desk.colors.set(row + 2, form::Colour::fromRgb(250, 230, 120));
        }
        desk.meeting(1, 1);
        desk.draw();
        desk.totals.isOld = false;
        desk.form.Tot[1].visible = true; // of 9h30: 268 to 427
        desk.form.Tot[1].caption = "30";
    }

    [[nodiscard]] QImage picture() const
    {
        return QImage::fromData(files::planAsPng({{desk.engine.drawnPage()}, QDate()}), "PNG");
    }
    /// The smallest rectangle of all in the area that is not white.
    [[nodiscard]] static QRect inkIn(const QImage& image, const QRect& area)
    {
        QRect ink;
        for (int y = area.top(); y <= area.bottom(); ++y) {
            for (int x = area.left(); x <= area.right(); ++x) {
                if (image.pixelColor(x, y) != white) {
                    ink |= QRect(x, y, 1, 1);
                }
            }
        }
        return ink;
    }

    PlanDesk desk{3};
};

} // namespace

TEST_F(ThePictureFile, isAsLargeAsThePlanWithItsHeaderAndTotals)
{
    // 22000 twips are 1466.7 pixels, the rows end at 345 + 2 * 368 + 300 = 1381 twips, 92.07.
    EXPECT_EQ(picture().size(), QSize(1467 + 2 * 12, 93 + 64 + 30 + 3 * 12));
}

TEST_F(ThePictureFile, holdsThePlanBelowItsHeader)
{
    const QImage image = picture();
    EXPECT_EQ(image.pixelColor(12 + 112, 76 + 50), yellow);              // the box
    EXPECT_EQ(image.pixelColor(12 + 1, 76 + 50), yellow);                // the room
    EXPECT_EQ(image.pixelColor(12 + 1416, 76 + 50), yellow);             // its places
    EXPECT_EQ(image.pixelColor(12 + 1, 76 + 25), QColor(236, 236, 236)); // row 0
    EXPECT_EQ(image.pixelColor(12 + 108, 76 + 18), QColor(40, 50, 70));  // 8h00
    EXPECT_EQ(image.pixelColor(12 + 600, 76 + 57), white);               // a free slot
    EXPECT_EQ(image.pixelColor(5, 76 + 50), white);
}

TEST_F(ThePictureFile, holdsTheTotalsBelowTheRows)
{
    const QImage image = picture();
    // 6 pixels below 92.07.
    EXPECT_EQ(image.pixelColor(12 + 300, 76 + 98), QColor(40, 50, 70));
    EXPECT_EQ(image.pixelColor(12 + 300, 76 + 95), white);
    EXPECT_EQ(image.pixelColor(12 + 200, 76 + 108), white);
}

TEST_F(ThePictureFile, tellsItsDayAndPeriodAtTheLeftAndItsSchoolAtTheRight)
{
    desk.state.establishment = {"Université du Nord", "Faculté des Sciences", 2026};
    const QImage image = picture();
    const int right = image.width() - 12;
    const QRect title = inkIn(image, {0, 0, 700, 38});
    EXPECT_NEAR(title.left(), 13, 2);
    EXPECT_NEAR(title.top(), 15, 3); // capitals of 20 pixels below the margin of 12
    const QRect period = inkIn(image, {0, 42, 700, 22});
    EXPECT_NEAR(period.left(), 13, 2);
    EXPECT_GT(period.top(), 45);
    EXPECT_LE(period.bottom(), 64);
    const QRect school = inkIn(image, {800, 0, image.width() - 800, 38});
    EXPECT_NEAR(school.right(), right, 3);
    const QRect university = inkIn(image, {800, 42, image.width() - 800, 22});
    EXPECT_NEAR(university.right(), right, 3);
    EXPECT_GT(school.height(), university.height()); // 16 pixels and 14
    // Nothing of the school remains without one.
    desk.state.establishment = {};
    EXPECT_TRUE(inkIn(picture(), {800, 0, image.width() - 800, 64}).isEmpty());
}
