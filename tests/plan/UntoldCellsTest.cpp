#include "plan/PlanRefresh.h"

#include "plan/PlanDesk.h"
#include "support/RuntimeMatchers.h"

using plan::Asked;
using plan::UntoldCell;
using test::PlanDesk;

namespace
{

/// Rooms R01 to R03 on a day of six slots of 90 minutes, the second from 9h30 on.
class UntoldCells : public testing::Test
{
protected:
    /// Of the first row.
    [[nodiscard]] const std::vector<UntoldCell>& untold()
    {
        desk.draw();
        return desk.drawn().at(0).untold;
    }
    [[nodiscard]] Asked asked()
    {
        desk.draw();
        return desk.drawn().at(0).asked;
    }

    PlanDesk desk{4};
    const std::vector<UntoldCell> second{{"9h30", 90}};
};

} // namespace

TEST_F(UntoldCells, areNoneWhereEachRowHasItsBox)
{
    desk.meeting(1, 2);
    EXPECT_TRUE(untold().empty());
    EXPECT_EQ(desk.drawn().at(0).boxes.size(), 1U);
}

TEST_F(UntoldCells, areRowsWhoseRoomNoBoxTells)
{
    desk.meeting(1, 2).null("Salle").set("YSalle", "R01");
    EXPECT_EQ(untold(), second);
    EXPECT_TRUE(desk.drawn().at(0).boxes.empty());
}

TEST_F(UntoldCells, areThoseOfTheOtherWeek)
{
    desk.meeting(1, 2).set("newnature", "10/20");
    desk.form.OptB().select();
    EXPECT_EQ(untold(), second);
    desk.form.OptA().select();
    EXPECT_TRUE(untold().empty());
}

TEST_F(UntoldCells, areAllWhereBoxesShowNothing)
{
    desk.meeting(1, 2).set("Durée", "120");
    for (form::CheckBox* part : {&desk.form.XOpCl, &desk.form.XOpEns, &desk.form.XpMat}) {
        desk.tick(*part, false);
    }
    EXPECT_EQ(untold(), (std::vector<UntoldCell>{{"9h30", 120}}));
}

TEST_F(UntoldCells, haveNoTimeWhereTheSubjectHidesThem)
{
    desk.meeting(1, 2);
    desk.tick(desk.form.Check1);
    desk.form.Cb_Mat.design({"Optique"}, 0);
    EXPECT_EQ(untold(), (std::vector<UntoldCell>{{QString(), 0}}));
}

TEST_F(UntoldCells, areGroupsThatAreThereLongerThanTheirBox)
{
    desk.meeting(1, 2);
    desk.meeting(1, 2).set("Classe", "GC2");
    EXPECT_TRUE(untold().empty());
    desk.meeting(1, 2).set("Classe", "GC3").set("Durée", "180");
    EXPECT_EQ(untold(), (std::vector<UntoldCell>{{"9h30", 180}}));
}

TEST_F(UntoldCells, areThoseOfACourseBeneathAMakeUpToo)
{
    desk.meeting(1, 2).null("Salle").set("YSalle", "R01");
    desk.makeUp(1, 2);
    desk.tick(desk.form.Check2);
    EXPECT_EQ(untold(), second);
    EXPECT_EQ(desk.drawn().at(0).boxes.size(), 1U);
}

TEST_F(UntoldCells, comeWithWhatWasAskedWhenTheRowWasDrawn)
{
    EXPECT_EQ(asked(), Asked::Courses);
    desk.tick(desk.form.Check2);
    EXPECT_EQ(desk.drawn().at(0).asked, Asked::Courses); // not looked up yet
    EXPECT_EQ(asked(), Asked::CoursesAndMakeUps);
    desk.form.OpExam().click() = nullptr;
    desk.form.OpExam().select();
    EXPECT_EQ(asked(), Asked::Exams);
}
