#include "print/Heading.h"

#include "print/SheetDesk.h"
#include "support/RuntimeMatchers.h"

using namespace test;

namespace
{

print::Heading heading(const PlanDesk& desk)
{
    plan::PlanState state = desk.state;
    state.establishment = establishment();
    return print::headingOf(state);
}

} // namespace

TEST(Heading, titlesTheSheetWithTheDay)
{
    PlanDesk desk(3);
    EXPECT_EQ(heading(desk).title, "Occupation des Salles du Lundi");
    EXPECT_EQ(heading(desk).day, "");
}

TEST(Heading, titlesTheSheetWithTheDateWhileThePickerIsInUse)
{
    PlanDesk desk(3);
    desk.form.Check2.setChecked(true);
    desk.form.DTPicker1.setValue(QDate(2026, 3, 5));
    EXPECT_EQ(heading(desk).title, "Occupation des Salles du 05/03/26");
    EXPECT_EQ(heading(desk).day, "Jeudi");
}

TEST(Heading, namesTheEstablishmentTheUniversityAndTheYear)
{
    PlanDesk desk(3);
    EXPECT_EQ(heading(desk).establishment, establishment().EstablishmentName);
    EXPECT_EQ(heading(desk).university, "Université du Nord");
    EXPECT_EQ(heading(desk).universityAndYear(), "Université du Nord · 2026");
    plan::PlanState state = desk.state;
    state.establishment = establishment();
    state.establishment.AcademicYear = 0; // none is known
    EXPECT_EQ(print::headingOf(state).universityAndYear(), "Université du Nord");
}

TEST(Heading, namesThePeriodWithItsDates)
{
    PlanDesk desk(3);
    desk.form.CbTranche.design({"Semestre 1"}, 0);
    desk.state.period.tellDays(desk.form, {2026, 9, 7}, {2027, 1, 29});
    EXPECT_EQ(heading(desk).period, "Semestre 1");
    EXPECT_EQ(heading(desk).periodAndWeek(), "Semestre 1");
    EXPECT_EQ(heading(desk).dates, "Du 07/SEPTEMBRE/2026 au 29/JANVIER/2027");
    desk.state.period.tellDays(desk.form, {2026, 9, 7}, {});
    EXPECT_EQ(heading(desk).dates, "Du 07/SEPTEMBRE/2026 au ");
    desk.state.period.tellDays(desk.form, {}, {}); // no such period
    EXPECT_EQ(heading(desk).dates, "");
}

TEST(Heading, saysWhatWasChosen)
{
    PlanDesk desk(3);
    EXPECT_EQ(heading(desk).choice, "");
    desk.form.OptB().select();
    desk.form.cb_Locaux.design({"0", "1", "2", "3"}, 3);
    desk.tick(desk.form.ElemDep);
    desk.form.Combo1.design({"GC"}, 0);
    desk.tick(desk.form.Check1);
    desk.form.Cb_Mat.design({"Algèbre"}, 0);
    EXPECT_EQ(heading(desk).choice, "Semaine B · Zone 3 · Département GC · Matière : Algèbre");
}

TEST(Heading, namesTheRoomsWithoutADepartmentOnlyBesideOne)
{
    PlanDesk desk(3);
    desk.form.Combo1.design({"GC"}, 0);
    desk.tick(desk.form.Chk_Neutre);
    EXPECT_EQ(heading(desk).choice, "");
    desk.tick(desk.form.ElemDep);
    EXPECT_EQ(heading(desk).choice, "Département GC + Eléments Neutres");
}

TEST(Heading, namesTheExamWeekInsteadOfWeekAOrB)
{
    PlanDesk desk(3);
    desk.form.CbTranche.design({"Semestre 1"}, 0);
    desk.form.Combo10.design({"1ère Sem. d'Examen"}, 0);
    desk.form.OptA().select();
    desk.form.OpExam().click() = nullptr; // the desk has no exams
    desk.form.OpExam().select();
    EXPECT_EQ(heading(desk).examWeek, "1ère Sem. d'Examen");
    EXPECT_EQ(heading(desk).periodAndWeek(), "Semestre 1 · 1ère Sem. d'Examen");
    EXPECT_EQ(heading(desk).choice, "");
}
