#include "plan/BoxWords.h"

#include "support/RuntimeMatchers.h"

using namespace plan;

namespace
{

/// A box of two classes, 65 students in all.
PlanBox crowdedBox()
{
    PlanBox box;
    box.cell.CellRowCount = 2;
    box.cell.CellClassList = "L1 A\tL2";
    box.group = GroupCounter{"2", "65", {}, false, false};
    return box;
}

/// A box of one class, too large for its room.
PlanBox overfullBox()
{
    PlanBox box;
    box.cell.CellClassList = "L1 A";
    box.group = GroupCounter{"1", "Dépassement 35/30", {}, true, false};
    return box;
}

const form::PlanForm shown;

} // namespace

TEST(EndText, isTheTimeAtTheEnd)
{
    EXPECT_EQ(endText("8h30", 90), "10h00");
    EXPECT_EQ(endText("8H30", 35), "9h05");
    EXPECT_EQ(endText("23h00", 90), "24h30"); // behind midnight the day goes on
}

TEST(EndText, isEmptyWithoutATimeToStartFrom)
{
    EXPECT_EQ(endText("matin", 90), "");
    EXPECT_EQ(endText("", 90), "");
}

TEST(StretchWords, areStartAndEnd)
{
    EXPECT_EQ(stretchWords("8h30", " à ", 90), "8h30 à 10h00");
    EXPECT_EQ(stretchWords("matin", " à ", 90), "matin");
}

TEST(GroupWords, nameTheClassesAndTheirStudents)
{
    EXPECT_EQ(groupWords(shown, crowdedBox()),
              QStringList({"2 groupes : L1\u00a0A, L2", "65\u00a0étudiants"}));
}

TEST(GroupWords, areTheStudentsAloneOfASingleRow)
{
    PlanBox box = crowdedBox();
    box.cell.CellRowCount = 1;
    EXPECT_EQ(groupWords(shown, box), QStringList({"65\u00a0étudiants"}));
}

TEST(GroupWords, leaveAnOverflowToTheRemarks)
{
    EXPECT_EQ(groupWords(shown, overfullBox()), QStringList());
    EXPECT_EQ(remarkWords(shown, overfullBox()), QStringList({"Dépassement 35/30"}));
    EXPECT_EQ(remarkWords(shown, crowdedBox()), QStringList());
}

TEST(GroupWords, saysNothingThatTheOptionHides)
{
    form::PlanForm without;
    without.Check3.setChecked(false);
    EXPECT_EQ(groupWords(without, crowdedBox()), QStringList());
    EXPECT_EQ(remarkWords(without, overfullBox()), QStringList());
}

TEST(GroupWords, areThereOnlyWithACounter)
{
    PlanBox box = crowdedBox();
    box.group.reset();
    EXPECT_EQ(groupWords(shown, box), QStringList());
}

TEST(RemarkWords, sayWhatHatchingLabelAndPicturesSay)
{
    PlanBox box = overfullBox();
    box.makeUp = true;
    box.classAbsent = true;
    box.studentAbsent = true;
    EXPECT_EQ(remarkWords(shown, box), QStringList({"Rattrapage", "Dépassement 35/30",
                                                    "Classe absente", "Étudiants absents"}));
}

TEST(RemarkWords, areNoneForAPlainBox)
{
    EXPECT_EQ(remarkWords(shown, PlanBox()), QStringList());
}

TEST(WeekLetter, isThatOfTheOnlyWeekOfASingleCourse)
{
    plan::PlanBox box;
    EXPECT_EQ(plan::weekLetter(box), "");
    box.cell.week = timetable::Week::A;
    EXPECT_EQ(plan::weekLetter(box), "A");
    box.cell.week = timetable::Week::B;
    EXPECT_EQ(plan::weekLetter(box), "B");
    box.makeUp = true;
    EXPECT_EQ(plan::weekLetter(box), "");
    box.makeUp = false;
    box.cell.CellRowCount = 2;
    EXPECT_EQ(plan::weekLetter(box), "");
}
