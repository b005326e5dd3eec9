#include "app/PlanHit.h"

#include "form/PlanForm.h"
#include "paint/Overlays.h"
#include "plan/RoomRows.h"
#include "plan/RowLanes.h"

#include <gtest/gtest.h>

using app::hitPlan;
using app::PlanHit;
using HitPart = app::PlanHit::Part;

namespace
{

/// Row 1 has a box of 90 minutes from 9h30 on, 160 by 20 pixels at 268, 47.53; row 2 one of 90
/// minutes from 8h00 on, at 108, 72.07.
class ThePoint : public testing::Test
{
protected:
    ThePoint()
    {
        form.Salle[0].place = {0, 345, 1500, 300};
        plan::PlaceRoomRows(form);
        for (form::Label& room : form.Salle) {
            room.visible = true;
        }
        addRow(1, 4020);
        addRow(2, 1620);
    }

    void addRow(int index, int x)
    {
        plan::PlanRow row;
        row.index = index;
        row.boxes.push_back(boxAt(x));
        content.rows.push_back(row);
    }
    static plan::PlanBox boxAt(int x)
    {
        plan::PlanBox box;
        box.x = x;
        box.width = 2400;
        return box;
    }
    plan::PlanBox& first() { return content.rows[0].boxes[0]; }
    void group(bool atRight = false)
    {
        first().group = plan::GroupCounter{"2", "65", {}, false, atRight};
    }
    [[nodiscard]] PlanHit at(double x, double y) const
    {
        return hitPlan(form, content, {}, {x, y});
    }
    [[nodiscard]] HitPart partAt(double x, double y) const { return at(x, y).part; }

    form::PlanForm form;
    plan::PlanContent content;
};

} // namespace

TEST_F(ThePoint, liesInTheBandOverABox)
{
    const PlanHit hit = at(300, 57);
    EXPECT_EQ(hit.part, HitPart::Box);
    EXPECT_EQ(hit.row, &content.rows[0]);
    EXPECT_EQ(hit.box, &content.rows[0].boxes[0]);
    EXPECT_EQ(at(110, 80).box, &content.rows[1].boxes[0]);
    EXPECT_EQ(at(110, 80).row, &content.rows[1]);
}

TEST_F(ThePoint, liesInNothingBesideTheBoxes)
{
    for (const QPointF& beside : {QPointF(267, 57), QPointF(429, 57), QPointF(300, 47),
                                  QPointF(300, 68), QPointF(110, 57), QPointF(300, 80)}) {
        const PlanHit hit = at(beside.x(), beside.y());
        EXPECT_EQ(hit.part, HitPart::Nothing) << beside.x() << ' ' << beside.y();
        EXPECT_EQ(hit.box, nullptr);
        EXPECT_EQ(hit.row, nullptr);
    }
    EXPECT_EQ(partAt(269, 48), HitPart::Box);
    EXPECT_EQ(partAt(300, 67), HitPart::Box);
}

TEST_F(ThePoint, liesInThePicturesPlacesWhetherOrNotTheyAreShown)
{
    EXPECT_EQ(partAt(427, 57), HitPart::YAbs); // 408 to 428
    EXPECT_EQ(partAt(409, 57), HitPart::YAbs);
    EXPECT_EQ(partAt(413, 57), HitPart::YAbs); // the left one, 394 to 414, lies under it
    EXPECT_EQ(partAt(407, 57), HitPart::XAbs);
    EXPECT_EQ(partAt(395, 57), HitPart::XAbs);
    EXPECT_EQ(partAt(393, 57), HitPart::Box);
}

TEST_F(ThePoint, liesInTheLabelsOverAllElse)
{
    group();
    EXPECT_EQ(partAt(269, 49), HitPart::Counter);
    EXPECT_EQ(partAt(426, 66), HitPart::Size);
    EXPECT_EQ(partAt(426, 49), HitPart::YAbs); // above the size
    EXPECT_EQ(partAt(300, 57), HitPart::Box);
    group(true);
    EXPECT_EQ(partAt(426, 49), HitPart::Counter);
    EXPECT_EQ(partAt(269, 49), HitPart::Box);
}

TEST_F(ThePoint, passesThroughLabelsThatAreNotShown)
{
    group();
    form.Check3.setChecked(false);
    EXPECT_EQ(partAt(269, 49), HitPart::Box);
    EXPECT_EQ(partAt(426, 66), HitPart::YAbs);
}

TEST_F(ThePoint, meetsAPictureWhereItIsDrawn)
{
    group();
    first().group->sizeLabel = "Dépassement 65/30";
    first().studentAbsent = true;
    const auto places = paint::drawnPlaces(
        form, paint::overlayPlaces(form, {}, 1, first(), paint::OverlayFonts()), first());
    ASSERT_LT(places.YAbs.right(), 400); // beside the label that would hide it
    EXPECT_EQ(partAt(places.YAbs.center().x(), 49), HitPart::YAbs);
    EXPECT_EQ(partAt(426, 49), HitPart::Box);
}

TEST_F(ThePoint, meetsTheBoxThatIsDrawnLast)
{
    content.rows[0].boxes.push_back(boxAt(4020 + 1200)); // 80 pixels further right
    EXPECT_EQ(at(300, 57).box, &content.rows[0].boxes[0]);
    EXPECT_EQ(at(349, 57).box, &content.rows[0].boxes[1]);
    EXPECT_EQ(partAt(409, 57), HitPart::Box); // over the first one's picture
}

TEST_F(ThePoint, meetsNothingInAHiddenRow)
{
    form.Salle[1].visible = false;
    EXPECT_EQ(partAt(300, 57), HitPart::Nothing);
    EXPECT_EQ(partAt(110, 80), HitPart::Box);
}

TEST_F(ThePoint, isInTheBoxThatHasThisPartOfTheRowsHeight)
{
    plan::PlanBox second = first();
    second.x += 800;
    second.marker = 7;
    content.rows[0].boxes.push_back(second);
    plan::assignLanes(content.rows[0]);
    paint::DrawingTarget target;
    target.hasHints = true;
    // Both are there from 322 to 428; the upper ten pixels are the first one's.
    const auto markerAt = [&](double x, double y) {
        const PlanHit hit = hitPlan(form, content, target, {x, y});
        return hit.box == nullptr ? -1 : hit.box->marker;
    };
    EXPECT_EQ(markerAt(350, 48), 0);
    EXPECT_EQ(markerAt(350, 57), 0);
    EXPECT_EQ(markerAt(350, 58), 7);
    EXPECT_EQ(markerAt(350, 67), 7);
    EXPECT_EQ(markerAt(300, 60), -1); // below the first one, before the second
}
