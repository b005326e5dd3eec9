#include "form/FormCopy.h"

#include "support/RuntimeMatchers.h"

using namespace form;

namespace
{

/// A form on which a user has changed something of every kind.
void change(PlanForm& form)
{
    form.scaleWidth = 20000;
    form.visible = true;
    form.XSalle.caption = "Occupation";
    form.Label4[4].caption = "Faculté";
    form.Salle[3].caption = "A3";
    form.Salle[3].place.top = 1234;
    form.Salle[3].backColor = Colour::fromRgb(1, 2, 3);
    form.Tot[2].visible = true;
    form.CbTranche.design({"S1", "S2"}, 1);
    form.CbJour.setListIndex(4);
    form.DTPicker1.visible = true;
    form.DTPicker1.setValue(QDate(2026, 10, 12));
    form.Check2.setChecked(true);
    form.OpExam.select();
    form.OptB.select();
    form.Colorer.setChecked(false);
    form.Opt_Cap.setChecked(true);
    form.Total_L_P.setText("7");
    form.Command3.enabled = true;
    form.setFontName("Liberation Serif");
}

} // namespace

TEST(FormCopy, hasTheValuesOfTheForm)
{
    PlanForm form;
    change(form);
    const auto copy = copyOf(form);
    EXPECT_EQ(copy->scaleWidth, 20000);
    EXPECT_TRUE(copy->visible);
    EXPECT_EQ(copy->XSalle.caption, "Occupation");
    EXPECT_EQ(copy->Label4[4].caption, "Faculté");
    EXPECT_EQ(copy->Salle[3].caption, "A3");
    EXPECT_EQ(copy->Salle[3].place.top, 1234);
    EXPECT_EQ(copy->Salle[3].backColor, Colour::fromRgb(1, 2, 3));
    EXPECT_TRUE(copy->Tot[2].visible);
    EXPECT_EQ(copy->CbTranche.text(), "S2");
    EXPECT_EQ(copy->CbJour.text(), "Vendredi");
    EXPECT_TRUE(copy->DTPicker1.visible);
    EXPECT_EQ(copy->DTPicker1.value(), QDate(2026, 10, 12));
    EXPECT_TRUE(copy->Check2.isChecked());
    EXPECT_TRUE(copy->OpExam.isSelected());
    EXPECT_TRUE(copy->OptB.isSelected());
    EXPECT_FALSE(copy->Colorer.isChecked());
    EXPECT_TRUE(copy->Opt_Cap.isChecked());
    EXPECT_EQ(copy->Total_L_P.text(), "7");
    EXPECT_TRUE(copy->Command3.enabled);
    EXPECT_EQ(copy->controlFontName, "Liberation Serif");
    EXPECT_EQ(copy->Tot[3].font.name, "Liberation Serif");
}

TEST(FormCopy, raisesNoEventOfTheForm)
{
    PlanForm form;
    change(form);
    int raised = 0;
    for (Event* event : {&form.CbJour.click, &form.DTPicker1.change, &form.Check2.click,
                         &form.OptA.click, &form.Total_L_P.change, &form.Command3.click}) {
        *event = [&raised] { ++raised; };
    }
    const auto copy = copyOf(form);
    copy->CbJour.setListIndex(0);
    copy->DTPicker1.setValue(QDate(2026, 10, 13));
    copy->Check2.setChecked(false);
    copy->OptA.select();
    copy->Total_L_P.setText("9");
    copy->Command3.press();
    EXPECT_EQ(raised, 0);
    EXPECT_EQ(form.CbJour.text(), "Vendredi");
    EXPECT_TRUE(form.OptB.isSelected());
    EXPECT_EQ(form.Total_L_P.text(), "7");
}
