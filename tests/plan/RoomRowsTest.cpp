#include "plan/RoomRows.h"

#include "support/RuntimeMatchers.h"

TEST(RoomRows, standOneBelowTheOtherWithAFixedGap)
{
    form::PlanForm form;
    form.Salle[0].place = {30, 345, 1500, 400};
    plan::PlaceRoomRows(form);
    EXPECT_EQ(form.Salle[0].place.top, 345);
    EXPECT_EQ(form.Salle[1].place.top, 345 + 468);
    EXPECT_EQ(form.Salle[29].place.top, 345 + 29 * 468);
    EXPECT_EQ(form.Salle[29].place.left, 30);
    EXPECT_EQ(form.Salle[29].place.height, 400);
}

TEST(RoomRows, beginWithTheFirstDrawnOneWhereThereIsNoRowZero)
{
    form::PlanForm form;
    form.EveryRoom.design(true);
    form.Salle[0].place = {30, 345, 1500, 400};
    plan::PlaceRoomRows(form);
    EXPECT_EQ(form.Salle[1].place.top, 345);
    EXPECT_EQ(form.Salle[2].place.top, 345 + 468);
    EXPECT_EQ(form.Cap[2].place.top, 345 + 468);
}

TEST(RoomRows, areShownAsLongAsTheLabelOfTheirRoomIs)
{
    form::PlanForm form;
    form.Salle[2].visible = true;
    form.Salle[3].visible = false;
    plan::PlanRow row;
    row.index = 2;
    EXPECT_TRUE(plan::isShown(form, row));
    row.index = 3;
    EXPECT_FALSE(plan::isShown(form, row));
}

TEST(RoomRows, areFoundByTheirHeight)
{
    form::PlanForm form;
    form.Salle[0].place = {30, 300, 1000, 400};
    plan::PlaceRoomRows(form); // row 1 begins at 768, 68 twips below the end of row 0
    form.Salle[0].visible = true;
    form.Salle[1].visible = true;
    form.Salle[2].visible = false;
    EXPECT_EQ(plan::rowAtHeight(form, 300), 0);
    EXPECT_EQ(plan::rowAtHeight(form, 699), 0);
    EXPECT_EQ(plan::rowAtHeight(form, 700), std::nullopt); // between two rows
    EXPECT_EQ(plan::rowAtHeight(form, 768), 1);
    EXPECT_EQ(plan::rowAtHeight(form, 1236), std::nullopt); // row 2 is hidden
    EXPECT_EQ(plan::rowAtHeight(form, 299), std::nullopt);
}

TEST(RoomRows, endWithTheirPlacesAtTheWindowsEdge)
{
    form::PlanForm form;
    form.scaleWidth = 21000;
    plan::PlaceRoomRows(form);
    for (const std::size_t row : {std::size_t{0}, std::size_t{7}}) {
        const form::Place& places = form.Cap[row].place;
        EXPECT_EQ(places.left, 21000 - places.width - 250);
        EXPECT_EQ(places.top, form.Salle[row].place.top);
    }
}
