#include "plan/PlanDesk.h"
#include "support/RuntimeMatchers.h"

using plan::PlanRefresh;
using runtime::ErrorNumber;
using test::PlanDesk;

namespace
{

/// Four drawn rooms of 30 places, counting on.
class PlanTotals : public testing::Test
{
protected:
    PlanTotals() { desk.form.Chk_Compt.setChecked(true); }

    QStringList draw()
    {
        desk.draw();
        return desk.totalsLine();
    }
    void onlyTeachers()
    {
        PlanDesk::tick(desk.form.XOpCl, false);
        PlanDesk::tick(desk.form.XpMat, false);
    }

    PlanDesk desk{5, "10", 30};
};

} // namespace

TEST_F(PlanTotals, areHiddenWhileNothingIsCounted)
{
    desk.meeting(1, 1);
    desk.form.Chk_Compt.setChecked(false);
    EXPECT_EQ(draw(), QStringList());
    EXPECT_FALSE(desk.form.Tot[0].visible);
}

TEST_F(PlanTotals, startOnlyWithTheNextRefresh)
{
    desk.form.Chk_Compt.setChecked(false);
    desk.meeting(1, 1);
    desk.draw();
    desk.form.Chk_Compt.setChecked(true);
    EXPECT_EQ(desk.totalsLine(), QStringList());
    EXPECT_EQ(desk.engine.refreshCount(), 1U);
    EXPECT_EQ(draw(), QStringList("30"));
}

TEST_F(PlanTotals, addTheSeatsOfTheOccupiedRoomsInEachSlot)
{
    desk.meeting(1, 1);
    desk.meeting(2, 1);
    desk.meeting(4, 3);
    EXPECT_EQ(draw(), QStringList({"60", "", "30"}));
}

TEST_F(PlanTotals, startFromZeroAtEveryRefresh)
{
    desk.meeting(1, 1);
    desk.draw();
    EXPECT_EQ(draw(), QStringList("30"));
}

TEST_F(PlanTotals, goOnFromThePageBefore)
{
    PlanDesk pages(21); // pages of 10 rooms: R01 to R10, R12 to R20
    pages.form.Chk_Compt.setChecked(true);
    pages.meeting(1, 1);
    pages.meeting(12, 1);
    pages.draw();
    EXPECT_EQ(pages.totalsLine(), QStringList("30"));
    pages.form.Command3.press();
    EXPECT_EQ(pages.totalsLine(), QStringList("60"));
}

TEST_F(PlanTotals, stayAsTheyAreWhenARefreshDoesNotCount)
{
    desk.meeting(1, 1);
    desk.draw();
    desk.totals.CountingOn = false; // as on the last page
    desk.form.Check3.setChecked(false);
    EXPECT_EQ(desk.totalsLine(), QStringList("30"));
    EXPECT_TRUE(desk.totals.isOld); // and say so
    desk.form.CbJour.setListIndex(0);
    EXPECT_EQ(desk.totalsLine(), QStringList("30"));
    EXPECT_FALSE(desk.totals.isOld);
}

TEST_F(PlanTotals, startAnewOnTheNextPageWhenTheLineIsOld)
{
    PlanDesk pages(21);
    pages.form.Chk_Compt.setChecked(true);
    pages.meeting(1, 1);
    pages.meeting(12, 1);
    pages.draw();
    pages.totals.CountingOn = false;
    pages.draw();
    ASSERT_TRUE(pages.totals.isOld);
    pages.totals.CountingOn = true;
    pages.form.Command3.press();
    EXPECT_EQ(pages.totalsLine(), QStringList("30")); // of the second page alone
    EXPECT_FALSE(pages.totals.isOld);
}

TEST_F(PlanTotals, countARoomThatTheSlotBeforeOverruns)
{
    desk.meeting(2, 3).set("Durée", "180");
    EXPECT_EQ(draw(), QStringList({"", "", "30", "30"}));
    EXPECT_EQ(desk.engine.markers().MarkerCount(), 1);
}

TEST_F(PlanTotals, countAnOverrunOfASingleMinute)
{
    desk.meeting(2, 3).set("Durée", "91");
    EXPECT_EQ(draw(), QStringList({"", "", "30", "30"}));
}

TEST_F(PlanTotals, lookNoFurtherThanOneSlotAhead)
{
    desk.meeting(2, 1).set("Durée", "270");
    EXPECT_EQ(draw(), QStringList({"30", "30"}));
}

TEST_F(PlanTotals, neverCountARoomOfTheRowBeforeInTheFirstSlot)
{
    desk.meeting(1, 10).set("Durée", "900");
    EXPECT_EQ(draw(), QStringList({"", "", "", "", "", "", "", "", "", "30"}));
}

TEST_F(PlanTotals, neverOverrunIntoASlotThatTheDayHasNot)
{
    desk.meeting(1, 6).set("Durée", "180");
    EXPECT_EQ(draw(), QStringList({"", "", "", "", "", "30"}));
}

TEST_F(PlanTotals, countWhatAMakeUpOverruns)
{
    desk.form.Check2.setChecked(true);
    desk.makeUp(1, 2).set("Durée", "120");
    EXPECT_EQ(draw(), QStringList({"", "30", "30"}));
}

TEST_F(PlanTotals, countWhatARowWithoutATextOverruns)
{
    // Held in a third room: no box, but the duration is that of a meeting.
    desk.meeting(1, 2).set("YSalle", "R02").set("Durée", "120").null("Salle");
    EXPECT_EQ(draw(), QStringList({"", "", "30"}));
}

TEST_F(PlanTotals, forgetTheDurationOfAFilteredBox)
{
    desk.meeting(1, 2).set("Durée", "180");
    PlanDesk::tick(desk.form.Check1);
    desk.form.Cb_Mat.design({"Optique"}, 0);
    EXPECT_EQ(draw(), QStringList());
}

TEST_F(PlanTotals, stopAtADurationThatIsNoInteger)
{
    desk.meeting(1, 2).set("YSalle", "R02").set("Durée", "1e12").null("Salle");
    const runtime::RunTimeError error = test::errorOf([&] { desk.draw(); });
    EXPECT_EQ(error.number(), ErrorNumber::Overflow);
    EXPECT_TRUE(error.activity().startsWith("Lecture de la durée « 1e12 »\n"))
        << error.activity().toStdString();
}

TEST_F(PlanTotals, countTheTeachersWhereOnlyTeachersAreShown)
{
    onlyTeachers();
    desk.meeting(1, 1);
    desk.meeting(2, 1).set("Enseignant2", "Durand").set("Enseignant3", "Petit");
    desk.meeting(3, 2).set("Enseignant2", "Durand");
    EXPECT_EQ(draw(), QStringList({"60/4", "30/2"}));
    EXPECT_EQ(draw(), QStringList({"60/4", "30/2"})); // the teachers start from zero as well
}

TEST_F(PlanTotals, addSeatsAndTeachersOfThePageBefore)
{
    PlanDesk pages(21);
    pages.form.Chk_Compt.setChecked(true);
    PlanDesk::tick(pages.form.XOpCl, false);
    PlanDesk::tick(pages.form.XpMat, false);
    pages.meeting(1, 1);
    pages.meeting(12, 1).set("Enseignant2", "Durand");
    pages.draw();
    pages.form.Command3.press();
    EXPECT_EQ(pages.totalsLine(), QStringList("60/3"));
}

TEST_F(PlanTotals, countNoTeachersWhileClassesAreShown)
{
    PlanDesk::tick(desk.form.XpMat, false);
    desk.meeting(1, 1);
    EXPECT_EQ(draw(), QStringList("30"));
}

TEST_F(PlanTotals, areResetByTheChoiceOfADay)
{
    desk.meeting(1, 1);
    desk.draw();
    desk.totals.CountingOn = false;
    desk.form.CbJour.setListIndex(0);
    EXPECT_TRUE(desk.totals.CountingOn); // "Comptage" is still ticked
    EXPECT_EQ(desk.totalsLine(), QStringList("30"));
}

TEST_F(PlanTotals, readTheSeatsAtThePlaceOfTheRowInTheRoomList)
{
    desk.meeting(1, 1);
    desk.page.PageOffset = 254;
    EXPECT_EQ(draw(), QStringList()); // room 255 has no places
    desk.page.PageOffset = 255;
    EXPECT_EQ(test::errorNumberOf([&] { desk.draw(); }), ErrorNumber::SubscriptOutOfRange);
}
