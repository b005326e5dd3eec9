#include "plan/Overlays.h"

#include "plan/RoomRows.h"
#include "support/RuntimeMatchers.h"

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
