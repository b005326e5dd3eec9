#include "form/PlanForm.h"

#include "support/RuntimeMatchers.h"

using form::PlanForm;

TEST(PlanForm, startsOnMondayInEveryWeekOfTeaching)
{
    const PlanForm form;
    EXPECT_EQ(form.CbJour.items(),
              QStringList({"Lundi", "Mardi", "Mercredi", "Jeudi", "Vendredi", "Samedi"}));
    EXPECT_EQ(form.CbJour.listIndex(), 0);
    EXPECT_TRUE(form.OptFixe().isSelected());
    EXPECT_TRUE(form.OpEns().isSelected());
    EXPECT_EQ(form.Semn.caption, "1");
    EXPECT_EQ(form.cb_Locaux.items().size(), 10);
    EXPECT_EQ(form.cb_Locaux.text(), "0");
}

TEST(PlanForm, startsWithOnlyColoursAndGroupCountersTicked)
{
    const PlanForm form;
    EXPECT_TRUE(form.Colorer.isChecked());
    EXPECT_TRUE(form.Check3.isChecked());
    for (const form::CheckBox* box : {&form.Chk_Type, &form.xOpExam, &form.Check1, &form.Check2,
                                      &form.Chk_Compt, &form.ElemDep, &form.Chk_Neutre}) {
        EXPECT_FALSE(box->isChecked()) << qPrintable(box->caption);
    }
}

TEST(PlanForm, hidesWhatBelongsToExamsToTheFilterAndToTheDate)
{
    const PlanForm form;
    EXPECT_FALSE(form.xOpExam.visible);
    EXPECT_FALSE(form.Combo10.visible);
    EXPECT_FALSE(form.Cb_Mat.visible);
    EXPECT_FALSE(form.Chk_Neutre.visible);
    EXPECT_FALSE(form.DTPicker1.visible);
    EXPECT_TRUE(form.Chk_Type.visible);
    EXPECT_TRUE(form.Frame1.visible);
}

TEST(PlanForm, showsNoKindOfDatabaseBeforeOneIsKnown)
{
    const PlanForm form;
    EXPECT_FALSE(form.ImgSql.visible);
    EXPECT_FALSE(form.ImgAccess.visible);
}

TEST(PlanForm, hasItsTitleOverTheTimeAxisOverTheRows)
{
    const PlanForm form;
    EXPECT_EQ(form.XSalle.place.top, -1050);
    EXPECT_EQ(form.XSalle.place.height, 480);
    for (const form::Label& tick : form.Label1) {
        EXPECT_EQ(tick.place.top, 0);
        EXPECT_EQ(tick.place.height, 300);
        EXPECT_TRUE(tick.font.bold);
    }
    for (const auto* labels : {&form.Salle, &form.Cap}) {
        for (const form::Label& label : *labels) {
            EXPECT_EQ(label.place.top, 345);
            EXPECT_EQ(label.place.height, 300);
        }
    }
    for (const form::Label& total : form.Tot) {
        EXPECT_TRUE(total.font.bold);
        EXPECT_FALSE(total.visible);
    }
}

TEST(PlanForm, hasAnHourTickFrom8To19)
{
    const PlanForm form;
    QStringList captions;
    for (const form::Label& tick : form.Label1) {
        captions.append(tick.caption);
    }
    EXPECT_EQ(captions, QStringList({"8h00", "9h00", "10h00", "11h00", "12h00", "13h00", "14h00",
                                     "15h00", "16h00", "17h00", "18h00", "19h00"}));
}

TEST(PlanForm, carriesTheCaptionsOfItsControls)
{
    const PlanForm form;
    EXPECT_EQ(form.caption, "Planning des Classes");
    EXPECT_EQ(form.OpEns().caption(), "Enseignement");
    EXPECT_EQ(form.OpExam().caption(), "Examen");
    EXPECT_EQ(form.OptFixe().caption(), "Toute Semaine");
    EXPECT_EQ(form.OptA().caption(), "Semaine A");
    EXPECT_EQ(form.OptB().caption(), "Semaine B");
    EXPECT_EQ(form.Check1.caption, "Selon la Matière:");
    EXPECT_EQ(form.ElemDep.caption, "Eléments du département ");
    EXPECT_EQ(form.Chk_Neutre.caption, "+ Eléments Neutres");
    EXPECT_EQ(form.Command2.caption, "Page Précédente");
    EXPECT_EQ(form.Command3.caption, "Page Suivante");
    EXPECT_EQ(form.Frame1.caption, "Palette : ");
}

TEST(PlanForm, givesEveryLabelTheSameFontName)
{
    PlanForm form;
    EXPECT_EQ(form.XSalle.font.name, "Arial Black");
    form.setFontName("Courier");
    EXPECT_EQ(form.controlFontName, "Courier");
    const std::vector<form::Label> labels{
        form.XSalle,    form.Label4[0], form.Label4[4], form.Label11, form.Semn,
        form.Label5,    form.Lab_Ver,   form.Label1[0], form.Tot[0],  form.Label1[11],
        form.Salle[29], form.Cap[29],   form.Tot[10]};
    for (const form::Label& label : labels) {
        EXPECT_EQ(label.font.name, "Courier");
    }
    EXPECT_EQ(form.XSalle.font.points, 18); // sizes stay
}

TEST(PlanForm, isTitledByTheDayWhileThePickerIsHidden)
{
    PlanForm form;
    form.DTPicker1.setValue(QDate(2026, 9, 8));
    form.CbJour.setListIndex(3);
    EXPECT_EQ(form.title(), "Occupation des Salles du Jeudi");
}

TEST(PlanForm, isTitledByTheDateWhileThePickerIsInUse)
{
    PlanForm form;
    form.DTPicker1.setValue(QDate(2026, 9, 8));
    form.DTPicker1.visible = true;
    EXPECT_EQ(form.title(), "Occupation des Salles du 08/09/26");
}
