#include "paint/Overlays.h"

#include "plan/RoomRows.h"
#include "support/RuntimeMatchers.h"

using namespace paint;
using namespace plan;

namespace
{

/// A box of 90 minutes at 9h30 in row 1, on a screen of 15 twips a pixel: 160 pixels wide from
/// 268 on, its right edge at 428.
class Overlays : public testing::Test
{
protected:
    Overlays()
    {
        form.Salle[0].place = {0, 345, 1500, 300};
        box.x = 4020;
        box.width = 2400;
        rowHeight(300);
    }

    void rowHeight(int twips)
    {
        form.Salle[0].place.height = twips;
        PlaceRoomRows(form);
    }
    void group(const QString& counter, const QString& sizeLabel, bool atRight = false)
    {
        box.group = GroupCounter{counter, sizeLabel, {}, false, atRight};
    }
    [[nodiscard]] OverlayPlaces places() const { return overlayPlaces(form, target, 1, box); }
    [[nodiscard]] QMarginsF reserved() const { return reservedByOverlays(form, places(), box); }

    form::PlanForm form;
    DrawingTarget target;
    PlanBox box;
};

} // namespace

TEST(OverlayFonts, areAsLargeAsTheTextsWidthAllows)
{
    const OverlayFonts fonts;
    const QString text = "Dépassement 195/200";
    const GlyphFont& largest = fonts.fitting(text, 1000);
    const double width = largest.width(text) + 2; // a pixel of room at each side
    EXPECT_EQ(&fonts.fitting(text, width), &largest);
    EXPECT_EQ(&fonts.fitting({}, 2), &largest);
    const GlyphFont& smaller = fonts.fitting(text, width - 1);
    EXPECT_LT(smaller.height(), largest.height());
    // The smallest one is no longer bold, so it is narrower at the same height.
    const GlyphFont& smallest = fonts.fitting(text, 10);
    EXPECT_EQ(smallest.height(), smaller.height());
    EXPECT_LT(smallest.width(text), smaller.width(text));
}

TEST_F(Overlays, followTheTimeAxisWhereItIsMoved)
{
    group("3", "60");
    const OverlayPlaces before = places();
    target.TargetXOffset = 40;
    EXPECT_EQ(places().XAbs, before.XAbs.translated(40, 0));
    EXPECT_EQ(places().YAbs, before.YAbs.translated(40, 0));
    EXPECT_EQ(places().ZAbs, before.ZAbs.translated(40, 0));
    EXPECT_EQ(places().Label2, before.Label2.translated(40, 0));
    EXPECT_EQ(places().Labelz, before.Labelz.translated(40, 0));
}

TEST_F(Overlays, makeThePicturesAsHighAsALowRow)
{
    const double top = 713 / 15.0; // 345 + 368 twips
    EXPECT_EQ(places().YAbs, QRectF(408, top, 20, 20));
    EXPECT_EQ(places().XAbs, QRectF(394, top, 20, 20)); // 1.7 widths from the edge
    EXPECT_EQ(places().ZAbs, QRectF(268, top, 160, 20));
}

TEST_F(Overlays, keepThePicturesSizeInAHighRow)
{
    rowHeight(700);
    const double top = (345 + 768) / 15.0;
    EXPECT_EQ(places().YAbs, QRectF(396, top, 32, 32));
    EXPECT_NEAR(places().XAbs.left(), 373.6, 1e-9);
    EXPECT_NEAR(places().ZAbs.height(), 700 / 15.0, 1e-9);
}

TEST_F(Overlays, haveNoLabelsWithoutAGroup)
{
    EXPECT_TRUE(places().Label2.isEmpty());
    EXPECT_TRUE(places().Labelz.isEmpty());
}

TEST_F(Overlays, putTheCounterIntoTheLeftOrTheRightCorner)
{
    group("2", "65");
    EXPECT_DOUBLE_EQ(places().Label2.left(), 268);
    group("2", "65", true);
    EXPECT_DOUBLE_EQ(places().Label2.right(), 428);
    EXPECT_DOUBLE_EQ(places().Label2.top(), places().ZAbs.top());
}

TEST_F(Overlays, putTheSizeIntoTheLowerRightCorner)
{
    group("2", "65");
    EXPECT_DOUBLE_EQ(places().Labelz.right(), 428);
    EXPECT_DOUBLE_EQ(places().Labelz.bottom(), places().ZAbs.bottom());
}

TEST_F(Overlays, keepTheLabelsInsideANarrowBox)
{
    for (const bool atRight : {false, true}) {
        for (const double minutes : {45.0, 5.0, 0.0}) {
            box.width = minutes * 2400 / 90;
            group("12", "Dépassement 135/30", atRight);
            const OverlayPlaces narrow = places();
            for (const QRectF& label : {narrow.Label2, narrow.Labelz}) {
                EXPECT_GE(label.left(), narrow.ZAbs.left() - 1e-9) << minutes;
                EXPECT_LE(label.right(), narrow.ZAbs.right() + 1e-9) << minutes;
            }
        }
    }
}

TEST_F(Overlays, reserveNothingWhereNothingIsShown)
{
    EXPECT_EQ(reserved(), QMarginsF());
    form.Check3.setChecked(false);
    group("2", "65");
    EXPECT_EQ(reserved(), QMarginsF());
}

TEST_F(Overlays, reserveTheirPicturesAtTheRight)
{
    box.studentAbsent = true;
    EXPECT_DOUBLE_EQ(reserved().right(), 20);
    box.classAbsent = true;
    EXPECT_DOUBLE_EQ(reserved().right(), 34);
    EXPECT_DOUBLE_EQ(reserved().left(), 0);
}

TEST_F(Overlays, reserveTheLabelsBesideTheTextOfALowRow)
{
    group("2", "Dépassement 35/30");
    EXPECT_DOUBLE_EQ(reserved().left(), places().Label2.width());
    EXPECT_DOUBLE_EQ(reserved().right(), places().Labelz.width());
    EXPECT_DOUBLE_EQ(reserved().bottom(), 0);
}

TEST_F(Overlays, reserveALongLabelBelowTheTextOfAHighRow)
{
    rowHeight(700);
    group("2", "Dépassement 35/30", true);
    EXPECT_DOUBLE_EQ(reserved().left(), 0);
    EXPECT_DOUBLE_EQ(reserved().right(), places().Label2.width());
    EXPECT_DOUBLE_EQ(reserved().bottom(), places().Labelz.height());
}

namespace
{

/// The box of above in a row of 20 pixels, with a label over its pictures.
class PicturesBesideALabel : public Overlays
{
protected:
    PicturesBesideALabel()
    {
        group("1", "Dépassement 35/30");
        labelled.ZAbs = {268, 100, 160, 20};
        labelled.YAbs = {408, 100, 20, 20};
        labelled.XAbs = {394, 100, 20, 20};
        labelled.Label2 = {268, 100, 12, 12};
        labelFrom(378);
    }
    void labelFrom(double left) { labelled.Labelz = {left, 108, 428 - left, 12}; }
    void expectPictures(double leftOfXAbs, double leftOfYAbs) const
    {
        const OverlayPlaces drawn = drawnPlaces(form, labelled, box);
        EXPECT_EQ(drawn.XAbs, QRectF(leftOfXAbs, 100, 20, 20));
        EXPECT_EQ(drawn.YAbs, QRectF(leftOfYAbs, 100, 20, 20));
        EXPECT_EQ(drawn.ZAbs, labelled.ZAbs);
        EXPECT_EQ(drawn.Labelz, labelled.Labelz);
    }

    OverlayPlaces labelled;
};

} // namespace

TEST_F(PicturesBesideALabel, endWhereTheLabelBegins)
{
    box.studentAbsent = true;
    expectPictures(344, 358); // both 428 - 378 = 50 pixels to the left
    box.classAbsent = true;
    expectPictures(344, 358);
    box.studentAbsent = false;
    expectPictures(358, 372); // 414 - 378 = 36 pixels
}

TEST_F(PicturesBesideALabel, stayWhereNothingIsShown)
{
    expectPictures(394, 408);
    box.classAbsent = box.studentAbsent = true;
    form.Check3.setChecked(false);
    expectPictures(394, 408);
    form.Check3.setChecked(true);
    box.group.reset();
    expectPictures(394, 408);
}

TEST_F(PicturesBesideALabel, stayWhereTheLabelHidesLittleOfThem)
{
    box.classAbsent = true;
    labelFrom(407); // 7 by 12 pixels of 20 by 20
    expectPictures(394, 408);
    labelFrom(405); // 9 by 12
    expectPictures(385, 399);
}

TEST_F(PicturesBesideALabel, doNotLeaveTheBox)
{
    labelFrom(275);
    box.studentAbsent = true;
    expectPictures(254, 268); // only the shown one counts
    box.classAbsent = true;
    expectPictures(268, 282);
}

TEST_F(PicturesBesideALabel, makeWayForACounterAtTheRight)
{
    box.group->atRight = true;
    box.studentAbsent = true;
    labelled.Label2 = {412, 100, 16, 12}; // 16 by 12 pixels of the triangle's 20 by 20
    labelled.Labelz = {418, 114, 10, 6};
    expectPictures(378, 392);
}

TEST_F(PicturesBesideALabel, takeTheirRoomFromTheText)
{
    box.studentAbsent = true;
    const auto right = [this] {
        return reservedByOverlays(form, drawnPlaces(form, labelled, box), box).right();
    };
    EXPECT_DOUBLE_EQ(right(), 70); // 428 - 358
    box.classAbsent = true;
    EXPECT_DOUBLE_EQ(right(), 84); // 428 - 344
}
