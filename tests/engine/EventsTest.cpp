// Which control's event leads where.

#include "EngineDesk.h"

using namespace test;

namespace
{

class TheControls : public testing::Test
{
protected:
    TheControls() { createTinyFaculty(database); }

    TestDatabase database{DatabaseKind::Sqlite};

private:
    std::unique_ptr<EngineDesk> m_desk;

protected:
    /// Made when it is first asked for.
    EngineDesk& desk()
    {
        if (!m_desk) {
            m_desk = std::make_unique<EngineDesk>(database);
        }
        return *m_desk;
    }
    form::PlanForm& form() { return desk().form; }
    std::uint64_t refreshesOf(const std::function<void()>& action)
    {
        return desk().refreshesOf(action);
    }
};

} // namespace

TEST_F(TheControls, thatChangeWhatIsShownRedrawOnce)
{
    for (form::CheckBox form::PlanForm::*box :
         {&form::PlanForm::Check3, &form::PlanForm::Chk_Type, &form::PlanForm::ChkGrille,
          &form::PlanForm::Colorer, &form::PlanForm::xOpExam}) {
        form::CheckBox& control = form().*box;
        for (int times = 0; times < 2; ++times) {
            EXPECT_EQ(refreshesOf([&] { control.setChecked(!control.isChecked()); }), 1U)
                << control.caption.toStdString();
        }
    }
    EXPECT_EQ(refreshesOf([this] { form().OptA().select(); }), 1U);
    EXPECT_EQ(refreshesOf([this] { form().OptB().select(); }), 1U);
    EXPECT_EQ(refreshesOf([this] { form().OptFixe().select(); }), 1U);
}

TEST_F(TheControls, ofABoxFitTheBoxesAndRedraw)
{
    const plan::CellLayout& layout = desk().engine.state().layout;
    EXPECT_EQ(layout.displayStyle, 3);
    int parts = 3;
    for (form::CheckBox* box : {&form().XOpCl, &form().XOpEns, &form().XpMat}) {
        EXPECT_GE(refreshesOf([&] { box->setChecked(false); }), 1U);
        EXPECT_EQ(layout.displayStyle, --parts);
    }
    for (form::CheckBox* box : {&form().XOpCl, &form().XOpEns, &form().XpMat}) {
        EXPECT_GE(refreshesOf([&] { box->setChecked(true); }), 1U);
        EXPECT_EQ(layout.displayStyle, ++parts);
    }
}

TEST_F(TheControls, ofTheDayShowAnother)
{
    EXPECT_EQ(desk().drawn(), QStringList({"A2:1", "B1:1", "B2:1", "C1:1"}));
    EXPECT_EQ(refreshesOf([this] { form().CbJour.setListIndex(1); }), 1U);
    EXPECT_EQ(desk().drawn(), QStringList({"A2:1", "B1:0", "B2:0", "C1:0"}));
    EXPECT_EQ(form().DTPicker1.value(), QDate(2025, 3, 18));
    EXPECT_EQ(refreshesOf([this] { form().Check2.setChecked(true); }), 0U);
    EXPECT_TRUE(form().DTPicker1.visible);
    EXPECT_EQ(refreshesOf([this] { form().DTPicker1.setValue(QDate(2025, 3, 24)); }), 1U);
    EXPECT_EQ(form().CbJour.text(), "Lundi");
    EXPECT_EQ(desk().engine.state().period.CurrentDate, QDate(2025, 3, 24));
}

TEST_F(TheControls, ofThePeriodShowItsDates)
{
    EXPECT_EQ(refreshesOf([this] { form().CbTranche.setListIndex(1); }), 1U);
    EXPECT_EQ(form().Label4[1].caption, "16/SEPTEMBRE/2024");
    EXPECT_EQ(desk().drawn(), QStringList({"A2:0", "B1:0", "B2:0", "C1:0"}));
}

TEST_F(TheControls, ofTheModeShowExamsAndTheirWeeks)
{
    EXPECT_GE(refreshesOf([this] { form().OpExam().select(); }), 1U);
    EXPECT_TRUE(form().Combo10.visible);
    EXPECT_EQ(form().Label4[1].caption, "09/JUIN/2025");
    EXPECT_EQ(refreshesOf([this] { form().Combo10.setListIndex(1); }), 1U);
    EXPECT_EQ(form().Label4[1].caption, "16/JUIN/2025");
    EXPECT_EQ(form().Semn.caption, "2");
    EXPECT_GE(refreshesOf([this] { form().OpEns().select(); }), 1U);
    EXPECT_FALSE(form().Combo10.visible);
    EXPECT_EQ(form().Label4[1].caption, "03/FÉVRIER/2025");
}

TEST_F(TheControls, ofTheRoomsChooseWhichAreShown)
{
    EXPECT_GE(refreshesOf([this] { form().cb_Locaux.setListIndex(2); }), 1U);
    EXPECT_EQ(form().Salle[0].caption, "B1");
    EXPECT_EQ(desk().drawn(), QStringList({"B2:1"}));
    form().cb_Locaux.setListIndex(0);
    form().Combo1.design(form().Combo1.items(), 0); // INFO
    EXPECT_GE(refreshesOf([this] { form().ElemDep.setChecked(true); }), 1U);
    EXPECT_EQ(desk().drawn(), QStringList({"B1:1"})); // behind A1
    EXPECT_GE(refreshesOf([this] { form().Combo1.setListIndex(1); }), 1U);
    EXPECT_EQ(form().Salle[0].caption, "A2");
    EXPECT_EQ(desk().drawn(), QStringList());
    EXPECT_GE(refreshesOf([this] { form().Chk_Neutre.setChecked(true); }), 1U);
    EXPECT_EQ(desk().drawn(), QStringList({"B2:1", "C1:1"}));
}

TEST_F(TheControls, ofThePageTurnIt)
{
    EXPECT_GE(refreshesOf([this] { form().Total_L_P.setText("2"); }), 1U);
    EXPECT_EQ(desk().drawn(), QStringList({"A2:1", "B1:1"}));
    EXPECT_GE(refreshesOf([this] { form().Command3.press(); }), 1U);
    EXPECT_EQ(form().Salle[1].caption, "C1"); // behind the room that the page starts from
    EXPECT_GE(refreshesOf([this] { form().Command2.press(); }), 1U);
    EXPECT_EQ(desk().drawn(), QStringList({"A2:1", "B1:1"}));
}

TEST_F(TheControls, ofTheSubjectShowItAlone)
{
    EXPECT_GE(refreshesOf([this] { form().Check1.setChecked(true); }), 0U);
    EXPECT_TRUE(form().Cb_Mat.visible);
    const auto analysis = static_cast<int>(form().Cb_Mat.items().indexOf("Analyse"));
    ASSERT_GE(analysis, 0);
    EXPECT_EQ(refreshesOf([&] { form().Cb_Mat.setListIndex(analysis); }), 1U);
    EXPECT_EQ(desk().drawn(), QStringList({"A2:0", "B1:1", "B2:0", "C1:0"}));
}

TEST_F(TheControls, ofTheCountStartItWithTheNextRefresh)
{
    EXPECT_EQ(refreshesOf([this] { form().Chk_Compt.setChecked(true); }), 0U);
    EXPECT_TRUE(desk().engine.state().totals.CountingOn);
    EXPECT_EQ(refreshesOf([this] { form().Chk_Compt.setChecked(false); }), 0U);
    EXPECT_FALSE(desk().engine.state().totals.CountingOn);
}

TEST_F(TheControls, ofThePaletteAskForItsFile)
{
    EXPECT_EQ(refreshesOf([this] { form().Command4.press(); }), 1U); // also when the user cancels
    EXPECT_EQ(desk().filesAsked, 1);
}

TEST_F(TheControls, ofACopyLeadNowhere)
{
    plan::PlanState copy = desk().engine.state();
    const QStringList drawn = desk().drawn();
    const auto useAll = [](form::PlanForm& form) {
        form.CbTranche.setListIndex(1);
        form.CbJour.setListIndex(2);
        form.DTPicker1.setValue(QDate(2025, 5, 5));
        form.OpExam().select();
        form.OptA().select();
        form.cb_Locaux.setListIndex(1);
        form.Total_L_P.setText("2");
        form.Command3.enabled = true;
        form.Command3.press();
        form.Command4.press();
        for (form::CheckBox* box :
             {&form.Check1, &form.Check2, &form.Check3, &form.XOpCl, &form.XOpEns, &form.XpMat,
              &form.Chk_Type, &form.xOpExam, &form.ElemDep, &form.Chk_Neutre, &form.Colorer,
              &form.ChkGrille, &form.Chk_Compt}) {
            box->setChecked(!box->isChecked());
        }
    };
    EXPECT_EQ(refreshesOf([&] { useAll(copy.form); }), 0U);
    EXPECT_EQ(desk().filesAsked, 0);
    EXPECT_EQ(desk().drawn(), drawn);
    EXPECT_FALSE(desk().engine.state().totals.CountingOn);
    EXPECT_EQ(desk().engine.state().page.PageStart, 0);
    // Nor does what is copied back bring the copy's events along.
    *desk().state = copy;
    EXPECT_EQ(refreshesOf([this] { form().OptB().select(); }), 1U);
}
