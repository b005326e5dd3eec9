// Why a plan is empty, on the tiny faculty, on Monday, 17 March 2025.

#include "plan/EmptyPlan.h"

#include "engine/EngineDesk.h"

using namespace test;

namespace
{

class TheEmptyPlan : public OnTheTinyFaculty
{
protected:
    [[nodiscard]] QString reason() const
    {
        return emptyPlanReason(*desk.state, desk.engine.content());
    }

    EngineDesk desk{database()};
    form::PlanForm& form = desk.form;
};

} // namespace

TEST_P(TheEmptyPlan, needsNoReasonWhereItHasABox)
{
    EXPECT_EQ(reason(), QString());
}

TEST_P(TheEmptyPlan, namesTheZoneWithoutRooms)
{
    form.cb_Locaux.setListIndex(7);
    EXPECT_EQ(reason(), "Aucune salle dans la zone 7.");
}

TEST_P(TheEmptyPlan, asksForADepartment)
{
    form.ElemDep.setChecked(true);
    EXPECT_EQ(reason(), "Aucun département n’est choisi : choisissez-en un dans la liste.");
    form.cb_Locaux.setListIndex(7);
    EXPECT_EQ(reason(), "Aucune salle dans la zone 7. Aucun département n’est choisi : "
                        "choisissez-en un dans la liste.");
    ASSERT_TRUE(form.Combo1.selectText("MATH"));
    EXPECT_FALSE(reason().contains("zone")) << reason().toStdString();
}

TEST_P(TheEmptyPlan, saysThatThereAreNoDepartments)
{
    database().execute("delete from `Département`");
    desk.engine.listDepartments();
    form.ElemDep.setChecked(true);
    EXPECT_EQ(reason(), "La liste des départements est vide.");
}

TEST_P(TheEmptyPlan, namesADepartmentWithoutRooms)
{
    database().execute("update salle set `Département`='INFO'");
    ASSERT_TRUE(form.Combo1.selectText("MATH"));
    form.ElemDep.setChecked(true);
    EXPECT_EQ(reason(), "Aucune salle dans le département « MATH ».");
    form.cb_Locaux.setListIndex(7);
    EXPECT_EQ(reason(), "Aucune salle dans la zone 7, ni dans le département « MATH ».");
}

TEST_P(TheEmptyPlan, saysThatThereAreNoRoomsAtAll)
{
    database().execute("delete from salle");
    form.cb_Locaux.setListIndex(0);
    EXPECT_EQ(reason(), "La base de données ne contient aucune salle.");
}

TEST_P(TheEmptyPlan, pointsToTheGreyedLine)
{
    form.cb_Locaux.setListIndex(3); // C1 alone
    EXPECT_EQ(reason(), "La seule salle de cette page est sur la ligne grisée. Cochez « Toutes les "
                        "salles » pour voir ses séances.");
    form.EveryRoom.setChecked(true);
    EXPECT_EQ(reason(), QString());
}

TEST_P(TheEmptyPlan, tellsAPageBehindTheLastRoom)
{
    form.Total_L_P.setText("2"); // of the five rooms that the page buttons reckon with
    form.cb_Locaux.setListIndex(1);
    EXPECT_EQ(reason(), QString());
    form.Command3.press();
    EXPECT_EQ(reason(), "Cette page commence après la dernière des 2 salles. Revenez à la première "
                        "page (Début).");
}

TEST_P(TheEmptyPlan, hasNoSunday)
{
    form.Check2.setChecked(true);
    form.DTPicker1.setValue(QDate(2025, 3, 16));
    EXPECT_EQ(reason(), "Le plan n’a pas de dimanche. Choisissez un jour du lundi au samedi.");
}

TEST_P(TheEmptyPlan, showsNoBoxWhereNothingIsToStandInIt)
{
    for (form::CheckBox* box : {&form.XOpCl, &form.XOpEns, &form.XpMat}) {
        EXPECT_EQ(reason(), QString());
        box->setChecked(false);
    }
    EXPECT_EQ(reason(),
              "Rien n’est coché dans « Dans les cases », donc aucune case n’est dessinée. "
              "Cochez « Classe », « Enseignant » ou « Matière ».");
}

TEST_P(TheEmptyPlan, namesADayWithoutCourses)
{
    form.CbJour.setListIndex(2);
    EXPECT_EQ(reason(), "Aucune séance dans ces salles le mercredi.");
    form.CbJour.setListIndex(1);
    EXPECT_EQ(reason(), QString());
    form.Check1.setChecked(true); // Algèbre
    EXPECT_EQ(reason(), "Aucune séance de « Algèbre » à montrer dans ces salles le mardi. D’autres "
                        "séances y sont, que ces choix ne montrent pas.");
}

TEST_P(TheEmptyPlan, namesTheChosenWeekAndTellsWhatIsHeldInTheOther)
{
    form.OptA().select();
    form.CbJour.setListIndex(2);
    EXPECT_EQ(reason(), "Aucune séance dans ces salles le mercredi en semaine A.");
    database().execute("update emplois set newnature='10/20' where Seance='Mardi2'");
    form.OptB().select();
    form.CbJour.setListIndex(1);
    EXPECT_EQ(reason(), "Aucune séance à montrer dans ces salles le mardi en semaine B. D’autres "
                        "séances y sont, que ces choix ne montrent pas.");
    form.OptFixe().select();
    EXPECT_EQ(reason(), QString());
}

TEST_P(TheEmptyPlan, doesNotSayThatARoomIsEmptyThatNoBoxTells)
{
    database().execute("update emplois set Salle=null, YSalle='A2' where Seance='Mardi2'");
    form.CbJour.setListIndex(1);
    EXPECT_EQ(reason(),
              "Aucune séance à montrer dans ces salles le mardi. D’autres séances y sont, "
              "que ces choix ne montrent pas.");
}

TEST_P(TheEmptyPlan, namesADayWithoutExams)
{
    form.OpExam().select();
    EXPECT_EQ(reason(), QString());
    form.CbJour.setListIndex(1);
    EXPECT_EQ(reason(), "Aucun examen dans ces salles le mardi de cette semaine d’examen.");
}

TEST_P(TheEmptyPlan, leavesWhatCouldNotBeReadToOthers)
{
    database().execute("alter table emplois rename to ailleurs");
    form.CbJour.setListIndex(2);
    EXPECT_FALSE(desk.engine.content().faults.empty());
    EXPECT_EQ(reason(), QString());
}

TEMPORA_ON_BOTH_DATABASES(TheEmptyPlan);
