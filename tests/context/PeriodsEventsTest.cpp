#include "context/ContextDesk.h"
#include "support/RuntimeMatchers.h"

#include <optional>

using namespace test;

namespace
{

/// The window with a visible plan on Monday, 12 October 2026, in period S1 (7 September 2026 to
/// 29 January 2027). Its exam weeks start on 1 and 8 February 2027, its control week on
/// 12 October 2026.
class PeriodEvents : public testing::Test
{
protected:
    PeriodEvents()
    {
        Timetable timetable(m_database, {"tranche", "dat_exam"});
        timetable.row("tranche", {{"ident", 1},
                                  {"Tranche", "S1"},
                                  {"DateDebut", QDate(2026, 9, 7)},
                                  {"DateFin", QDate(2027, 1, 29)}});
        timetable.load();
        desk.emplace(m_database);
        form().CbTranche.addItem("S1");
        desk->periods.chooseByIdent(1);
        desk->periods.showCurrentWeek();
        form().visible = true;
        desk->plan.calls.clear();
    }

    form::PlanForm& form() { return desk->form; }
    context::Periods& periods() { return desk->periods; }
    [[nodiscard]] qsizetype redraws() const { return desk->plan.redraws(); }

    /// Ticks "Date": the picker follows the day list from now on, and the list the picker.
    void showPicker() { form().Check2.setChecked(true); }
    /// What the plan would show at each redraw: day, date of the picker, first day of the week.
    QStringList& shownAtRedraws()
    {
        desk->plan.onRefresh = [this] {
            m_shown.append(
                QStringList({form().CbJour.text(), form().DTPicker1.value().toString(Qt::ISODate),
                             desk->viewed.CurrentDate.toString(Qt::ISODate)})
                    .join(' '));
        };
        return m_shown;
    }

private:
    TestDatabase m_database{DatabaseKind::Sqlite};
    QStringList m_shown;

protected:
    std::optional<ContextDesk> desk;
};

} // namespace

TEST_F(PeriodEvents, startOnTheMondayOfThisWeek)
{
    EXPECT_EQ(form().DTPicker1.value(), QDate(2026, 10, 12));
    EXPECT_EQ(desk->viewed.CurrentDate, QDate(2026, 10, 12));
    EXPECT_EQ(desk->viewed.shownDate(form()), QDate(2026, 10, 12));
}

TEST_F(PeriodEvents, resetTheTotalsAndRedrawOnceForAPeriod)
{
    form().Tot[0].caption = "35";
    form().Chk_Compt.setChecked(true);
    form().CbTranche.setListIndex(0);
    EXPECT_EQ(form().Tot[0].caption, "0000");
    EXPECT_TRUE(desk->totals.CountingOn);
    EXPECT_EQ(redraws(), 1);
    EXPECT_EQ(desk->viewed.CurrentDate, QDate(2026, 10, 12)); // the week stays
}

TEST_F(PeriodEvents, moveToTheExamWeekOfAPeriodChosenInExamMode)
{
    form().OpExam().select();
    form().Label4[1].caption = "";
    desk->plan.calls.clear();
    form().CbTranche.setListIndex(0);
    EXPECT_EQ(form().Label4[1].caption, "01/FÉVRIER/2027"); // not the period's own dates
    EXPECT_EQ(form().Label4[3].caption, "06/FÉVRIER/2027");
    EXPECT_EQ(desk->viewed.CurrentDate, QDate(2027, 2, 1));
    EXPECT_EQ(redraws(), 1);
}

TEST_F(PeriodEvents, leaveTheExamWeeksAloneWhileTheWindowIsNotVisible)
{
    form().visible = false;
    form().OpExam().select();
    form().Label4[1].caption = "";
    form().CbTranche.setListIndex(0);
    EXPECT_EQ(form().Label4[1].caption, "07/SEPTEMBRE/2026");
}

TEST_F(PeriodEvents, writeTheChosenDayIntoThePickerBeforeTheRedraw)
{
    const QStringList& shown = shownAtRedraws();
    form().Tot[0].caption = "35";
    form().CbJour.setListIndex(3);
    EXPECT_EQ(shown, QStringList("Jeudi 2026-10-15 2026-10-12"));
    EXPECT_EQ(form().Tot[0].caption, "0000");
    EXPECT_EQ(desk->viewed.shownDate(form()), QDate(2026, 10, 15));
}

TEST_F(PeriodEvents, keepTheListsDayWhenItWritesIntoAVisiblePicker)
{
    showPicker();
    form().CbJour.setListIndex(3);
    EXPECT_EQ(form().CbJour.listIndex(), 3);
    EXPECT_EQ(form().DTPicker1.value(), QDate(2026, 10, 15));
    EXPECT_EQ(redraws(), 1); // no echo
}

TEST_F(PeriodEvents, redrawAgainForTheDayThatIsChosenAlready)
{
    form().CbJour.setListIndex(0);
    form().CbJour.setListIndex(0);
    EXPECT_EQ(redraws(), 2);
}

TEST_F(PeriodEvents, leaveThePickerAloneWhileTheWindowIsNotVisible)
{
    form().visible = false;
    form().CbJour.setListIndex(3);
    EXPECT_EQ(form().DTPicker1.value(), QDate(2026, 10, 12));
}

TEST_F(PeriodEvents, moveDayAndWeekToAPickedDate)
{
    showPicker();
    form().DTPicker1.setValue(QDate(2026, 10, 21)); // Wednesday of the next week
    EXPECT_EQ(form().CbJour.text(), "Mercredi");
    EXPECT_EQ(desk->viewed.CurrentDate, QDate(2026, 10, 19));
    EXPECT_EQ(form().DTPicker1.value(), QDate(2026, 10, 21)); // no echo
    EXPECT_EQ(redraws(), 1);
}

TEST_F(PeriodEvents, showThePickedWeekAlreadyAtTheRedraw)
{
    showPicker();
    const QStringList& shown = shownAtRedraws();
    form().DTPicker1.setValue(QDate(2026, 10, 21));
    EXPECT_EQ(shown, QStringList("Mercredi 2026-10-21 2026-10-19"));
}

TEST_F(PeriodEvents, redrawForAnotherWeekOnTheSameWeekday)
{
    showPicker();
    form().DTPicker1.setValue(QDate(2026, 10, 19));
    EXPECT_EQ(form().CbJour.text(), "Lundi");
    EXPECT_EQ(redraws(), 1);
}

TEST_F(PeriodEvents, showNoDayForAPickedSunday)
{
    showPicker();
    form().DTPicker1.setValue(QDate(2026, 10, 25));
    EXPECT_EQ(form().CbJour.listIndex(), -1);
    EXPECT_EQ(form().CbJour.text(), "");
    EXPECT_EQ(desk->viewed.CurrentDate, QDate(2026, 10, 19));
    EXPECT_EQ(desk->viewed.shownDate(form()), QDate(2026, 10, 25));
    EXPECT_EQ(redraws(), 1);
}

TEST_F(PeriodEvents, changeOnlyTheWeekWhileThePickerIsHidden)
{
    form().CbJour.setListIndex(2);
    desk->plan.calls.clear();
    form().DTPicker1.setValue(QDate(2026, 10, 22));
    EXPECT_EQ(form().CbJour.text(), "Mercredi");
    EXPECT_EQ(desk->viewed.CurrentDate, QDate(2026, 10, 19));
    EXPECT_EQ(redraws(), 0);
}

TEST_F(PeriodEvents, showThePickerExactlyWhileDateIsTicked)
{
    showPicker();
    EXPECT_TRUE(form().DTPicker1.visible);
    form().Check2.setChecked(false);
    EXPECT_FALSE(form().DTPicker1.visible);
    EXPECT_EQ(redraws(), 0);
}

TEST_F(PeriodEvents, openAnExamWeekOnItsSecondDay)
{
    const QStringList& shown = shownAtRedraws();
    form().OpExam().select();
    EXPECT_EQ(shown, QStringList("Lundi 2027-02-02 2027-02-01")); // the picker is hidden
    EXPECT_EQ(form().Label4[1].caption, "01/FÉVRIER/2027");
    EXPECT_EQ(form().Label4[3].caption, "06/FÉVRIER/2027");
}

TEST_F(PeriodEvents, moveTheListToTheSecondDayOfAnExamWeekWithAVisiblePicker)
{
    showPicker();
    const QStringList& shown = shownAtRedraws();
    form().OpExam().select();
    EXPECT_EQ(shown, QStringList({"Mardi 2027-02-02 2027-02-01", "Mardi 2027-02-02 2027-02-01"}));
}

TEST_F(PeriodEvents, stayInTheExamWeekWhenItsSecondDayRuleReachesSunday)
{
    showPicker();
    form().CbJour.setListIndex(5);
    form().OpExam().select();
    EXPECT_EQ(form().DTPicker1.value(), QDate(2027, 2, 7));
    EXPECT_EQ(form().CbJour.listIndex(), -1);
    EXPECT_EQ(desk->viewed.CurrentDate, QDate(2027, 2, 1));
}

TEST_F(PeriodEvents, showTheExamOptionsInExamMode)
{
    form().OpExam().select();
    EXPECT_TRUE(form().Combo10.visible);
    EXPECT_TRUE(form().xOpExam.visible);
    EXPECT_FALSE(form().Chk_Type.visible);
    EXPECT_EQ(form().XOpEns.caption, "Surveillant");
}

TEST_F(PeriodEvents, chooseTheExamWeek)
{
    form().OpExam().select();
    const QStringList& shown = shownAtRedraws();
    form().Combo10.setListIndex(1);
    EXPECT_EQ(form().Semn.caption, "2");
    EXPECT_EQ(form().Label4[1].caption, "08/FÉVRIER/2027");
    form().Combo10.setListIndex(2);
    EXPECT_EQ(form().Semn.caption, "3");
    EXPECT_EQ(form().Label4[1].caption, "12/OCTOBRE/2026");
    EXPECT_EQ(form().Label4[3].caption, "17/OCTOBRE/2026");
    EXPECT_EQ(shown, QStringList({"Lundi 2027-02-09 2027-02-08", "Lundi 2026-10-13 2026-10-12"}));
}

TEST_F(PeriodEvents, ignoreTheExamWeekWhileItsListIsHidden)
{
    form().Combo10.setListIndex(1);
    EXPECT_EQ(form().Semn.caption, "1");
    EXPECT_EQ(redraws(), 0);
}

TEST_F(PeriodEvents, showNoExamWeekInTeachingMode)
{
    form().OpExam().select();
    form().OpEns().select();
    periods().Afficher_Dates();
    EXPECT_EQ(form().Label4[1].caption, "07/SEPTEMBRE/2026");
}

TEST_F(PeriodEvents, returnToThisWeekInTeachingMode)
{
    form().CbJour.setListIndex(4);
    form().OpExam().select();
    const QStringList& shown = shownAtRedraws();
    form().OpEns().select();
    EXPECT_EQ(shown, QStringList("Vendredi 2026-10-12 2026-10-12")); // the picker is hidden
    EXPECT_FALSE(form().Combo10.visible);
    EXPECT_FALSE(form().xOpExam.visible);
    EXPECT_TRUE(form().Chk_Type.visible);
    EXPECT_EQ(form().XOpEns.caption, "Enseignant");
    EXPECT_EQ(form().Label4[1].caption, "07/SEPTEMBRE/2026");
    EXPECT_EQ(form().Label4[3].caption, "29/JANVIER/2027");
    EXPECT_EQ(desk->viewed.TrancheIdent, 1);
}

TEST_F(PeriodEvents, returnToMondayInTeachingModeWithAVisiblePicker)
{
    showPicker();
    form().OpExam().select();
    const QStringList& shown = shownAtRedraws();
    form().OpEns().select();
    EXPECT_EQ(shown, QStringList({"Lundi 2026-10-12 2026-10-12", "Lundi 2026-10-12 2026-10-12"}));
}

TEST_F(PeriodEvents, serveADatePickedDuringTheRedrawOfADay)
{
    showPicker();
    desk->plan.onRefresh = [this] {
        desk->plan.onRefresh = nullptr;
        periods().yieldTo([this] { form().DTPicker1.setValue(QDate(2026, 10, 23)); });
    };
    form().CbJour.setListIndex(1);
    EXPECT_EQ(form().CbJour.text(), "Vendredi");
    EXPECT_EQ(form().DTPicker1.value(), QDate(2026, 10, 23));
    EXPECT_EQ(desk->viewed.CurrentDate, QDate(2026, 10, 19));
    EXPECT_EQ(redraws(), 2);
    form().DTPicker1.setValue(QDate(2026, 10, 12)); // and the flags are as before
    EXPECT_EQ(form().CbJour.text(), "Lundi");
}

TEST_F(PeriodEvents, serveADayChosenDuringTheRedrawOfAPickedDate)
{
    showPicker();
    desk->plan.onRefresh = [this] {
        desk->plan.onRefresh = nullptr;
        periods().yieldTo([this] { form().CbJour.setListIndex(4); });
    };
    form().DTPicker1.setValue(QDate(2026, 10, 20));
    EXPECT_EQ(form().CbJour.text(), "Vendredi");
    EXPECT_EQ(form().DTPicker1.value(), QDate(2026, 10, 23)); // Friday of the picked week
    EXPECT_EQ(desk->viewed.CurrentDate, QDate(2026, 10, 19));
}

TEST_F(PeriodEvents, goToTodayWithOneRedraw)
{
    form().CbJour.setListIndex(5);
    QStringList& shown = shownAtRedraws();
    form().Today.press();
    EXPECT_EQ(shown, QStringList({"Mercredi 2026-10-14 2026-10-12"}));
    EXPECT_FALSE(form().DTPicker1.visible);
}

TEST_F(PeriodEvents, goToTodayFromAnotherWeekOfThePicker)
{
    showPicker();
    form().DTPicker1.setValue(QDate(2026, 11, 24));
    QStringList& shown = shownAtRedraws();
    form().Today.press();
    EXPECT_EQ(shown, QStringList({"Mercredi 2026-10-14 2026-10-12"}));
}

TEST_F(PeriodEvents, goToTheMondayToComeOnASunday)
{
    desk->today = QDate(2026, 10, 18);
    form().Today.press();
    EXPECT_EQ(form().CbJour.text(), "Lundi");
    EXPECT_EQ(form().DTPicker1.value(), QDate(2026, 10, 19));
    EXPECT_EQ(desk->viewed.CurrentDate, QDate(2026, 10, 19));
}

TEST_F(PeriodEvents, goToTheDaysBesideWithOneRedrawEach)
{
    form().CbJour.setListIndex(1);
    QStringList& shown = shownAtRedraws();
    form().DayAfter.press();
    form().DayBefore.press();
    form().DayBefore.press();
    EXPECT_EQ(shown, QStringList({"Mercredi 2026-10-14 2026-10-12", "Mardi 2026-10-13 2026-10-12",
                                  "Lundi 2026-10-12 2026-10-12"}));
}

TEST_F(PeriodEvents, stepOverSundays)
{
    form().CbJour.setListIndex(5);
    QStringList& shown = shownAtRedraws();
    form().DayAfter.press();
    form().DayBefore.press();
    EXPECT_EQ(shown, QStringList({"Lundi 2026-10-19 2026-10-19", "Samedi 2026-10-17 2026-10-12"}));
}

TEST_F(PeriodEvents, moveThePickedDateWhenTheyStep)
{
    showPicker();
    form().DTPicker1.setValue(QDate(2026, 11, 21)); // a Saturday
    QStringList& shown = shownAtRedraws();
    form().DayAfter.press();
    EXPECT_EQ(shown, QStringList({"Lundi 2026-11-23 2026-11-23"}));
}

TEST_F(PeriodEvents, leadFromAPickedSundayToTheDaysBesideIt)
{
    showPicker();
    form().DTPicker1.setValue(QDate(2026, 11, 22));
    ASSERT_EQ(form().CbJour.listIndex(), -1);
    form().DayBefore.press();
    EXPECT_EQ(form().DTPicker1.value(), QDate(2026, 11, 21));
    form().DTPicker1.setValue(QDate(2026, 11, 22));
    form().DayAfter.press();
    EXPECT_EQ(form().DTPicker1.value(), QDate(2026, 11, 23));
    EXPECT_EQ(form().CbJour.text(), "Lundi");
}

TEST_F(PeriodEvents, stepWithinTheExamWeekOnly)
{
    form().OpExam().select();
    form().CbJour.setListIndex(0);
    EXPECT_FALSE(periods().hasDayBeside(-1));
    EXPECT_TRUE(periods().hasDayBeside(1));
    const qsizetype before = redraws();
    form().DayBefore.press();
    EXPECT_EQ(redraws(), before);
    form().DayAfter.press();
    EXPECT_EQ(form().CbJour.text(), "Mardi");
    EXPECT_EQ(form().DTPicker1.value(), QDate(2027, 2, 2));
    EXPECT_EQ(desk->viewed.CurrentDate, QDate(2027, 2, 1));
    form().CbJour.setListIndex(5);
    EXPECT_FALSE(periods().hasDayBeside(1));
}

TEST_F(PeriodEvents, chooseTheExamWeekThatHoldsToday)
{
    form().OpExam().select();
    form().Today.press(); // of the control week, 12 October 2026
    EXPECT_TRUE(form().OpExam().isSelected());
    EXPECT_EQ(desk->viewed.examWeek, 3);
    EXPECT_EQ(form().CbJour.text(), "Mercredi");
    EXPECT_EQ(desk->viewed.CurrentDate, QDate(2026, 10, 12));
    EXPECT_EQ(form().DTPicker1.value(), QDate(2026, 10, 14));
}

TEST_F(PeriodEvents, returnToTeachingWhereNoExamWeekHoldsToday)
{
    desk->today = QDate(2026, 11, 26); // a Thursday
    form().OpExam().select();
    form().Today.press();
    EXPECT_TRUE(form().OpEns().isSelected());
    EXPECT_EQ(form().CbJour.text(), "Jeudi");
    EXPECT_EQ(form().DTPicker1.value(), QDate(2026, 11, 26));
}

TEST_F(PeriodEvents, openOnTodayBeforeTheWindowIsVisible)
{
    form().visible = false;
    periods().openOnToday();
    EXPECT_EQ(form().CbJour.text(), "Mercredi");
    EXPECT_EQ(form().DTPicker1.value(), QDate(2026, 10, 14));
    EXPECT_EQ(desk->viewed.CurrentDate, QDate(2026, 10, 12));
}
