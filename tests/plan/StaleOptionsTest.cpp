// Where the options and the plan disagree: after each choice of the window, on the tiny faculty, on
// Monday, 17 March 2025.

#include "plan/StaleOptions.h"

#include "engine/EngineDesk.h"
#include "plan/PlanDesk.h"

#include <memory>

using namespace test;
using plan::StaleOptions;

namespace
{

class TheStaleOptions : public OnTheTinyFaculty
{
protected:
    [[nodiscard]] StaleOptions stale() { return staleOptions(*desk.state, desk.engine.content()); }
    [[nodiscard]] QString sentence() { return staleSentence(stale()); }
    [[nodiscard]] int makeUps() const
    {
        int count = 0;
        for (const plan::PlanRow& row : desk.engine.content().rows) {
            for (const plan::PlanBox& box : row.boxes) {
                count += box.makeUp ? 1 : 0;
            }
        }
        return count;
    }

    EngineDesk desk{database()};
    form::PlanForm& form = desk.form;
};

/// The same with no database around it: the rules of the sentence.
StaleOptions gap(StaleOptions::DayGap dayGap)
{
    StaleOptions stale;
    stale.dayGap = dayGap;
    return stale;
}

const QDate kMonday(2025, 3, 17);

} // namespace

TEST_P(TheStaleOptions, areNoneInAFreshPlan)
{
    EXPECT_TRUE(stale().isEmpty());
    EXPECT_EQ(sentence(), QString());
}

TEST_P(TheStaleOptions, missTheMakeUpsUntilTheDayIsChosenAgain)
{
    form.Check2.setChecked(true);
    EXPECT_EQ(stale().lacksMakeUps, kMonday);
    EXPECT_TRUE(stale().isMended);
    EXPECT_EQ(sentence(), "Les rattrapages du lundi 17/03/2025 n’ont pas encore été cherchés.");
    EXPECT_EQ(makeUps(), 0);
    desk.engine.chooseDayAgain();
    EXPECT_TRUE(stale().isEmpty());
    EXPECT_EQ(makeUps(), 1);
}

TEST_P(TheStaleOptions, forgetABoxThatIsTickedAndUntickedAgain)
{
    form.Check2.setChecked(true);
    form.Check2.setChecked(false);
    EXPECT_TRUE(stale().isEmpty());
}

TEST_P(TheStaleOptions, keepMakeUpsOnlyWhereSomeAreDrawn)
{
    form.Check2.setChecked(true);
    desk.engine.chooseDayAgain();
    form.Check2.setChecked(false);
    EXPECT_TRUE(stale().keepsMakeUps);
    EXPECT_EQ(sentence(), "« Date » n’est plus coché, mais des rattrapages sont encore affichés.");
    desk.engine.chooseDayAgain();
    EXPECT_TRUE(stale().isEmpty());
    EXPECT_EQ(makeUps(), 0);

    form.Check2.setChecked(true);
    form.CbJour.setListIndex(1); // no make-up on that Tuesday
    form.Check2.setChecked(false);
    EXPECT_TRUE(stale().isEmpty());
}

TEST_P(TheStaleOptions, keepTheSubjectWhoseFilterHasEnded)
{
    form.Check1.setChecked(true);
    EXPECT_TRUE(stale().isEmpty());
    ASSERT_TRUE(form.Cb_Mat.selectText("Physique"));
    EXPECT_TRUE(stale().isEmpty());
    form.Check1.setChecked(false);
    EXPECT_EQ(stale().keepsSubject, "Physique");
    EXPECT_EQ(sentence(), "« Selon la Matière » n’est plus coché, mais le plan reste filtré par « "
                          "Physique ».");
    form.OptA().select(); // whatever redraws mends it
    EXPECT_TRUE(stale().isEmpty());
}

TEST_P(TheStaleOptions, lackTotalsThatAreAskedFor)
{
    form.Chk_Compt.setChecked(true);
    EXPECT_TRUE(stale().lacksTotals);
    EXPECT_EQ(sentence(), "« Comptage » est coché, mais les places occupées de ce plan ne sont pas "
                          "comptées.");
    form.Chk_Compt.setChecked(false);
    EXPECT_TRUE(stale().isEmpty());
    form.Chk_Compt.setChecked(true);
    desk.engine.chooseDayAgain();
    EXPECT_TRUE(stale().isEmpty());
    EXPECT_TRUE(desk.state->totals.isShown());
}

TEST_P(TheStaleOptions, keepTheTotalsOfAllPagesOnTheLastOne)
{
    form.Total_L_P.setText("2"); // two pages, with two rooms and with one behind the greyed ones
    form.Chk_Compt.setChecked(true);
    desk.engine.chooseDayAgain();
    form.Command3.press();
    ASSERT_FALSE(desk.state->totals.CountingOn); // the line now holds all the rooms
    EXPECT_TRUE(stale().isEmpty());
    form.OptA().select(); // another plan, which nobody counts
    EXPECT_TRUE(stale().lacksTotals);
    desk.engine.chooseDayAgain();
    EXPECT_TRUE(stale().isEmpty());
}

TEST_P(TheStaleOptions, tellAnExamWeekThatOpensOnItsSecondDay)
{
    form.OpExam().select();
    EXPECT_EQ(stale().dayGap, (StaleOptions::DayGap{0, QDate(2025, 6, 10), false, std::nullopt}));
    EXPECT_EQ(sentence(),
              "Le plan montre le lundi, mais les absences iraient au mardi 10/06/2025.");
    EXPECT_TRUE(stale().isMended);
    desk.engine.chooseDayAgain();
    EXPECT_TRUE(stale().isEmpty());
    EXPECT_EQ(form.DTPicker1.value(), QDate(2025, 6, 9));
}

TEST_P(TheStaleOptions, tellAnotherExamWeekAsWell)
{
    form.OpExam().select();
    desk.engine.chooseDayAgain();
    form.Combo10.setListIndex(1); // no exam, so nothing that an absence could be of
    EXPECT_TRUE(stale().isEmpty());
    form.Combo10.setListIndex(0);
    EXPECT_EQ(stale().dayGap->date, QDate(2025, 6, 10));
}

TEST_P(TheStaleOptions, tellADateThatIsTickedBesideAnExamWeek)
{
    form.OpExam().select();
    form.CbJour.setListIndex(5);
    form.Combo10.setListIndex(0);   // Saturday's second day is a Sunday
    EXPECT_TRUE(stale().isEmpty()); // no exam, and the title names the day
    form.Check2.setChecked(true);   // now it names the date
    EXPECT_EQ(stale().dayGap, (StaleOptions::DayGap{5, QDate(2025, 6, 15), true, std::nullopt}));
    EXPECT_EQ(stale().lacksMakeUps, std::nullopt); // exams have none
    EXPECT_EQ(sentence(),
              "Le plan montre le samedi, mais la date affichée, celle des absences, est "
              "le dimanche 15/06/2025.");
    desk.engine.chooseDayAgain();
    EXPECT_TRUE(stale().isEmpty());
    EXPECT_EQ(form.DTPicker1.value(), QDate(2025, 6, 14));
}

TEST_P(TheStaleOptions, tellADateOutsideTheExamWeekAndThatChoosingTheDayDoesNotHelp)
{
    form.Check2.setChecked(true);
    form.OpExam().select();
    EXPECT_TRUE(stale().isEmpty()); // the day follows a date that is on view
    EXPECT_EQ(form.CbJour.text(), "Mardi");
    form.DTPicker1.setValue(kMonday);
    EXPECT_EQ(stale().dayGap, (StaleOptions::DayGap{0, kMonday, true, QDate(2025, 6, 9)}));
    EXPECT_FALSE(stale().isMended);
    EXPECT_EQ(sentence(), "Le plan montre les examens de la semaine du 09/06/2025, mais la date "
                          "affichée, celle des absences, est le lundi 17/03/2025.");
    form.DTPicker1.setValue(QDate(2025, 6, 14));
    EXPECT_TRUE(stale().isEmpty());
}

TEST_P(TheStaleOptions, tellAnExamWeekThatDoesNotBeginOnAMonday)
{
    database().execute("update dat_exam set Semaine1='2025-06-12' where Tranche=1");
    form.OpExam().select(); // a Thursday, and its second day is a Friday
    EXPECT_EQ(stale().dayGap, (StaleOptions::DayGap{0, QDate(2025, 6, 13), false, std::nullopt}));
    EXPECT_FALSE(stale().isMended); // Monday lies before the week
    desk.engine.chooseDayAgain();
    EXPECT_EQ(stale().dayGap,
              (StaleOptions::DayGap{0, QDate(2025, 6, 9), false, QDate(2025, 6, 12)}));
    EXPECT_EQ(sentence(),
              "Le plan montre les examens de la semaine du 12/06/2025, mais les absences "
              "iraient au lundi 09/06/2025.");
}

TEST_P(TheStaleOptions, tellAReturnToTeaching)
{
    form.CbJour.setListIndex(1);
    form.OpExam().select();
    form.OpEns().select(); // this week's Monday, and the list still says Mardi
    EXPECT_EQ(stale().dayGap, (StaleOptions::DayGap{1, kMonday, false, std::nullopt}));
    EXPECT_EQ(sentence(),
              "Le plan montre le mardi, mais les absences iraient au lundi 17/03/2025.");
    desk.engine.chooseDayAgain();
    EXPECT_TRUE(stale().isEmpty());
    EXPECT_EQ(form.DTPicker1.value(), QDate(2025, 3, 18));
}

TEST_P(TheStaleOptions, areNoneWhereNoRoomIsShown)
{
    form.cb_Locaux.setListIndex(7);
    form.Check2.setChecked(true);
    form.Chk_Compt.setChecked(true);
    EXPECT_TRUE(stale().isEmpty());
}

TEST_P(TheStaleOptions, areAllToldInOneSentence)
{
    form.Check1.setChecked(true);
    form.Check1.setChecked(false);
    form.Check2.setChecked(true);
    EXPECT_EQ(sentence(), "Les rattrapages du lundi 17/03/2025 n’ont pas encore été cherchés ; « "
                          "Selon la Matière » n’est plus coché, mais le plan reste filtré par « "
                          "Algèbre ».");
}

TEST_P(TheStaleOptions, areNoneAfterEveryChoiceThatRedraws)
{
    using Choice = std::function<void()>;
    const std::vector<std::pair<const char*, Choice>> choices{
        {"period", [this] { form.CbTranche.setListIndex(0); }},
        {"other period", [this] { form.CbTranche.setListIndex(1); }},
        {"first period", [this] { form.CbTranche.setListIndex(0); }},
        {"day", [this] { form.CbJour.setListIndex(4); }},
        {"today", [this] { form.Today.press(); }},
        {"day before", [this] { form.DayBefore.press(); }},
        {"day after", [this] { form.DayAfter.press(); }},
        {"week A", [this] { form.OptA().select(); }},
        {"week B", [this] { form.OptB().select(); }},
        {"every week", [this] { form.OptFixe().select(); }},
        {"class", [this] { form.XOpCl.setChecked(false); }},
        {"teacher", [this] { form.XOpEns.setChecked(false); }},
        {"subject", [this] { form.XpMat.setChecked(false); }},
        {"class again", [this] { form.XOpCl.setChecked(true); }},
        {"type", [this] { form.Chk_Type.setChecked(true); }},
        {"colours", [this] { form.Colorer.setChecked(false); }},
        {"grid", [this] { form.ChkGrille.setChecked(!form.ChkGrille.isChecked()); }},
        {"groups", [this] { form.Check3.setChecked(false); }},
        {"filter", [this] { form.Check1.setChecked(true); }},
        {"filtered subject", [this] { form.Cb_Mat.setListIndex(2); }},
        {"zone", [this] { form.cb_Locaux.setListIndex(1); }},
        {"all zones", [this] { form.cb_Locaux.setListIndex(0); }},
        {"department", [this] { form.Combo1.setListIndex(0); }},
        {"its rooms", [this] { form.ElemDep.setChecked(true); }},
        {"rooms of none", [this] { form.Chk_Neutre.setChecked(true); }},
        {"every zone's", [this] { form.ElemDep.setChecked(false); }},
        {"lines", [this] { form.Total_L_P.setText("2"); }},
        {"next page", [this] { form.Command3.press(); }},
        {"previous page", [this] { form.Command2.press(); }},
        {"every room", [this] { form.EveryRoom.setChecked(true); }},
        {"last page", [this] { desk.engine.showLastPage(); }},
        {"first page", [this] { desk.engine.showFirstPage(); }},
        {"palette", [this] { form.Command4.press(); }},
        {"pale colours", [this] { desk.engine.togglePaleColors(); }},
    };
    for (const auto& [name, choose] : choices) {
        choose();
        EXPECT_EQ(sentence(), QString()) << name;
    }
}

TEST_P(TheStaleOptions, areNoneForADateThatIsPickedWhileItIsOnView)
{
    form.Check2.setChecked(true);
    for (const QDate date : {QDate(2025, 3, 18), QDate(2025, 3, 24), QDate(2025, 3, 23), kMonday}) {
        form.DTPicker1.setValue(date); // the third one a Sunday
        EXPECT_EQ(sentence(), QString()) << date.toString(Qt::ISODate).toStdString();
    }
}

TEST_P(TheStaleOptions, areMendedOnASundayWithoutMovingTheDate)
{
    form.Check2.setChecked(true);
    form.DTPicker1.setValue(QDate(2025, 3, 23));
    form.Chk_Compt.setChecked(true);
    EXPECT_TRUE(stale().lacksTotals);
    desk.engine.chooseDayAgain();
    EXPECT_TRUE(stale().isEmpty());
    EXPECT_EQ(form.DTPicker1.value(), QDate(2025, 3, 23));
    EXPECT_EQ(form.CbJour.listIndex(), -1);
}

TEMPORA_ON_BOTH_DATABASES(TheStaleOptions);

TEST(StaleOptionsInARedraw, lackTheMakeUpsOfTheRowsBefore)
{
    PlanDesk desk(4);
    std::ignore = desk.makeUp(1, 1);
    desk.duringRow(2, [&] { PlanDesk::tick(desk.form.Check2); });
    desk.draw();
    EXPECT_TRUE(staleOptions(desk.state, desk.engine.content()).lacksMakeUps.has_value());
}

TEST(StaleOptionsInARedraw, keepTheMakeUpsOfTheRowsThatWereAskedForThem)
{
    PlanDesk desk(4);
    std::ignore = desk.makeUp(3, 1);
    desk.duringRow(1, [&] { PlanDesk::tick(desk.form.Check2); });
    desk.draw();
    PlanDesk::tick(desk.form.Check2, false);
    EXPECT_TRUE(staleOptions(desk.state, desk.engine.content()).keepsMakeUps);
}

TEST(StaleOptionsInARedraw, tellAnyOtherChoiceThatDiffers)
{
    PlanDesk desk(2);
    desk.draw();
    PlanDesk::tick(desk.form.XpMat, !desk.form.XpMat.isChecked()); // without its reaction
    const StaleOptions stale = staleOptions(desk.state, desk.engine.content());
    EXPECT_TRUE(stale.isOtherwiseOld);
    EXPECT_EQ(staleSentence(stale), "Des options ont changé depuis que le plan a été dessiné.");
}

TEST(StaleSentence, namesTheDayOfTheBoxesAndTheDateOfTheirAbsences)
{
    EXPECT_EQ(staleSentence(gap({5, kMonday, false, std::nullopt})),
              "Le plan montre le samedi, mais les absences iraient au lundi 17/03/2025.");
}
