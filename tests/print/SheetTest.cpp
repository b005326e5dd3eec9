// Where things lie on a sheet. The desk's plan: hours from 8h00 at 1620 twips on, 1700 twips for
// 90 minutes; room names 1500 wide, places 540.

#include "print/Sheet.h"

#include "print/SheetDesk.h"
#include "support/RuntimeMatchers.h"

using namespace test;

TEST(Sheet, placesTheHoursAlongThePrintersAxis)
{
    PlanDesk desk(5);
    desk.draw();
    const print::Sheet sheet = sheetOf(desk);
    EXPECT_EQ(sheet.page.state.form.Label1[0].place.left, 1620);
    EXPECT_EQ(sheet.page.state.form.Label1[1].place.left, 2753);   // 60 minutes: 1133.33
    EXPECT_EQ(sheet.page.state.form.Label1[3].place.left, 5020);   // 180 minutes: 3400
    EXPECT_EQ(sheet.page.state.form.Label1[11].place.left, 14087); // 660 minutes: 12466.67
}

TEST(Sheet, placesBoxesByTheirStartAndLength)
{
    PlanDesk desk(5);
    desk.meeting(1, 5).set("Durée", 45); // 14h00: 360 minutes, 6800 twips
    desk.draw();
    const print::Sheet sheet = sheetOf(desk);
    const plan::PlanBox& box = sheet.page.content.rows[0].boxes[0];
    EXPECT_EQ(box.x, 8420);
    EXPECT_EQ(box.width, 850);
}

TEST(Sheet, leavesTheWindowsOwnFormAsItWas)
{
    PlanDesk desk(5);
    desk.meeting(1, 5);
    desk.draw();
    static_cast<void>(sheetOf(desk));
    EXPECT_EQ(desk.form.Label1[1].place.left, 3220); // 1620 + 1600
    EXPECT_EQ(desk.form.Salle[0].place.top, 345);
    EXPECT_EQ(desk.form.Salle[0].place.height, 300);
    EXPECT_EQ(desk.form.Cap[1].place.left, 22000 - 540 - 250);
    EXPECT_EQ(desk.box(1).x, 11220); // 1620 + 9600
}

TEST(Sheet, startsWithTheFirstDrawnRow)
{
    // 19 rows of 400 twips: (9600 - 345) / 19 - 68 = 419 fit the height of A4.
    PlanDesk desk(25, "19");
    desk.form.Salle[0].place.height = 400;
    desk.draw();
    const print::Sheet sheet = sheetOf(desk);
    EXPECT_EQ(sheet.page.state.form.Salle[1].caption, "R01");
    EXPECT_EQ(sheet.page.state.form.Salle[1].place.top, 345);
    EXPECT_EQ(sheet.page.state.form.Salle[1].place.height, 419);
    EXPECT_EQ(sheet.page.state.form.Salle[2].place.top, 345 + 419 + 68);
    EXPECT_EQ(sheet.bottom, 345 + 19 * (419 + 68) - 68);
}

TEST(Sheet, usesTheHeightThatAWiderDayLeaves)
{
    // From 15h30 to 21h00: the axis ends at 1620 + 780 * 1700 / 90 = 16353. With 600 for the places
    // and as much beside it the sheet is 17553 twips wide, 1.0889 times the paper: scaled down to
    // it, 11180 * 1.0889 - 1580 = 10594 twips fit its height, (10594 - 345) / 19 - 68 for a row.
    PlanDesk desk(25, "19");
    desk.form.Salle[0].place.height = 400;
    desk.meeting(1, 6).set("Durée", 330);
    desk.draw();
    const print::Sheet sheet = sheetOf(desk);
    EXPECT_EQ(sheet.width, 16953);
    EXPECT_EQ(sheet.page.state.form.Salle[1].place.height, 471);
}

TEST(Sheet, makesLowRowsHalfAsHighAgainAtMost)
{
    PlanDesk desk(5, "4");
    desk.draw();
    EXPECT_EQ(sheetOf(desk).page.state.form.Salle[1].place.height, 450);
}

TEST(Sheet, neverMakesRowsLower)
{
    PlanDesk desk(25, "19");
    desk.form.Salle[0].place.height = 700;
    desk.draw();
    EXPECT_EQ(sheetOf(desk).page.state.form.Salle[1].place.height, 700);
}

TEST(Sheet, givesTheLastRoomsRowsAsHighAsTheOthers)
{
    PlanDesk desk(25, "19");
    desk.draw();
    desk.form.Command3.press();
    EXPECT_EQ(desk.page.RowsShown, 4); // rooms 20 to 24
    EXPECT_EQ(sheetOf(desk).page.state.form.Salle[1].place.height, 419);
}

TEST(Sheet, putsThePlacesBehindTheHours)
{
    PlanDesk desk(5);
    desk.draw();
    const print::Sheet sheet = sheetOf(desk);
    EXPECT_EQ(sheet.axisEnd, 14087);
    EXPECT_EQ(sheet.page.state.form.Cap[1].place.left, 14147);
    EXPECT_EQ(sheet.right, 14687);
}

TEST(Sheet, isLongerWhereASeanceEndsAfterTheLastHour)
{
    PlanDesk desk(5);
    desk.meeting(1, 6).set("Debut", "18h00").set("Durée", 180);
    desk.draw();
    EXPECT_EQ(sheetOf(desk).axisEnd, 1620 + 14733); // 21h00: 780 minutes
}

TEST(Sheet, endsAtMidnight)
{
    PlanDesk desk(5);
    desk.meeting(1, 6).set("Durée", 30000);
    desk.draw();
    EXPECT_EQ(sheetOf(desk).axisEnd, 1620 + 18133); // 960 minutes behind 8h00
}

TEST(Sheet, movesTheHoursRightOfASeanceBeforeTheFirst)
{
    PlanDesk desk(5);
    desk.meeting(1, 1).set("Debut", "7h15"); // 45 minutes before 8h00: 850 twips
    desk.draw();
    const print::Sheet sheet = sheetOf(desk);
    EXPECT_EQ(sheet.page.content.rows[0].boxes[0].x, 1620);
    EXPECT_EQ(sheet.page.state.form.Label1[0].place.left, 2470);
}

TEST(Sheet, putsTheTotalsUnderTheirSlots)
{
    PlanDesk desk(5);
    desk.tick(desk.form.Chk_Compt);
    desk.totals.CountingOn = true;
    desk.meeting(1, 2);
    desk.draw();
    const print::Sheet sheet = sheetOf(desk);
    const form::Label& total = sheet.page.state.form.Tot[1];
    EXPECT_TRUE(total.visible);
    EXPECT_EQ(total.caption, "30");
    EXPECT_EQ(total.place.left, 3320); // 9h30
    EXPECT_EQ(total.place.width, 1700);
    EXPECT_EQ(total.place.top, 345 + 4 * 518 - 68 + 60);
    EXPECT_EQ(sheet.bottom, total.place.top + total.place.height);
    EXPECT_FALSE(sheet.page.state.form.Tot[0].visible);
}

TEST(Sheet, isMadeOfAnEmptyRoomSetToo)
{
    PlanDesk desk(0);
    desk.draw();
    const print::Sheet sheet = sheetOf(desk);
    EXPECT_EQ(sheet.page.state.page.RowsShown, -1);
    EXPECT_TRUE(sheet.page.content.rows.empty());
}

TEST(Sheet, keepsTheNumberOfItsPage)
{
    PlanDesk desk(5);
    desk.draw();
    std::vector<plan::PlanPage> pages;
    for (int page = 0; page < 2; ++page) {
        pages.push_back(std::move(sheetOf(desk).page));
        pages.back().number = page + 1;
        pages.back().count = 2;
    }
    const auto sheets = print::makeSheets(std::move(pages));
    ASSERT_EQ(sheets.size(), 2);
    EXPECT_EQ(sheets[1].page.number, 2);
    EXPECT_EQ(sheets[1].page.count, 2);
}
