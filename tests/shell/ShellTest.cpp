#include "shell/Shell.h"

#include "shell/ShellDesk.h"

#include <algorithm>
#include <utility>

using namespace test;

namespace
{

constexpr int keyF2 = 113;

class TheShell : public OnBothDatabases
{
protected:
    void SetUp() override
    {
        createTinyFaculty(database());
        desk.start();
    }

    [[nodiscard]] std::vector<form::Colour> rowColors()
    {
        std::vector<form::Colour> colors;
        for (const plan::PlanRow& row : desk.shell().engine().content().rows) {
            colors.push_back(row.color);
        }
        return colors;
    }

    ShellDesk desk{database()};
};

TEMPORA_ON_BOTH_DATABASES(TheShell);

form::Colour raised(form::Colour color)
{
    const auto raise = [](int component) { return std::min(component + 175, 255); };
    return form::Colour::fromRgb(raise(color.red()), raise(color.green()), raise(color.blue()));
}

} // namespace

TEST_P(TheShell, showsPaleColoursAfterF2AndTheFirstOnesAfterF2Twice)
{
    // The seed is fixed, so every drawing of random colours is the same.
    const std::vector<form::Colour> first = rowColors();
    std::vector<form::Colour> pale = first;
    std::transform(pale.begin(), pale.end(), pale.begin(), raised);
    desk.shell().Form_KeyDown(keyF2);
    EXPECT_EQ(rowColors(), pale);
    desk.shell().Form_KeyDown(keyF2);
    EXPECT_EQ(rowColors(), first);
}

TEST_P(TheShell, keepsTheColoursDrawnAtTheStartBeyondTheRowsShown)
{
    // The second redraw of the same colours reads them two entries further on: row 3 and row 4 then
    // show entries 5 and 6, which no refresh of four rows ever writes.
    desk.form().OptA().select();
    const std::vector<form::Colour> before = rowColors();
    desk.shell().Form_KeyDown(keyF2);
    desk.shell().Form_KeyDown(keyF2);
    desk.form().OptB().select();
    EXPECT_EQ(rowColors()[2], before[2]);
    EXPECT_EQ(rowColors()[3], before[3]);
}

TEST_P(TheShell, ignoresEveryOtherKey)
{
    const std::uint64_t redraws = desk.shell().engine().refreshCount();
    for (const int key : {112, 114, 13, 27, 0}) {
        desk.shell().Form_KeyDown(key);
    }
    EXPECT_EQ(desk.shell().engine().refreshCount(), redraws);
}

TEST_P(TheShell, redrawsOnceForEveryChoice)
{
    form::PlanForm& form = desk.form();
    const std::vector<std::pair<const char*, std::function<void()>>> choices = {
        {"CbTranche", [&] { form.CbTranche.setListIndex(1); }},
        {"CbJour", [&] { form.CbJour.setListIndex(2); }},
        {"OpExam", [&] { form.OpExam().select(); }},
        {"Combo10", [&] { form.Combo10.setListIndex(1); }},
        {"OpEns", [&] { form.OpEns().select(); }},
        {"OptB", [&] { form.OptB().select(); }},
        {"Chk_Type", [&] { form.Chk_Type.setChecked(true); }},
        {"ChkGrille", [&] { form.ChkGrille.setChecked(false); }},
        {"Check3", [&] { form.Check3.setChecked(false); }},
        {"Colorer", [&] { form.Colorer.setChecked(false); }},
        {"XOpCl", [&] { form.XOpCl.setChecked(false); }},
        {"XOpEns", [&] { form.XOpEns.setChecked(false); }},
        {"XpMat", [&] { form.XpMat.setChecked(false); }},
        {"xOpExam", [&] { form.xOpExam.setChecked(true); }},
        {"OptA", [&] { form.OptA().select(); }},
        {"OptFixe", [&] { form.OptFixe().select(); }},
        {"cb_Locaux", [&] { form.cb_Locaux.setListIndex(1); }},
        {"ElemDep", [&] { form.ElemDep.setChecked(true); }},
        {"Combo1", [&] { form.Combo1.setListIndex(0); }},
        {"Chk_Neutre", [&] { form.Chk_Neutre.setChecked(true); }},
        {"Label20", [&] { desk.shell().Label20_Click(); }},
    };
    for (const auto& [name, choose] : choices) {
        const std::uint64_t before = desk.shell().engine().refreshCount();
        choose();
        EXPECT_EQ(desk.shell().engine().refreshCount(), before + 1) << name;
    }
}

TEST_P(TheShell, redrawsNothingForADateThatIsNotShownAndForCounting)
{
    const std::uint64_t redraws = desk.shell().engine().refreshCount();
    desk.form().Check2.setChecked(true);
    desk.form().Check2.setChecked(false);
    desk.form().DTPicker1.setValue(QDate(2025, 4, 1));
    desk.form().Chk_Compt.setChecked(true);
    EXPECT_EQ(desk.shell().engine().refreshCount(), redraws);
}

TEST_P(TheShell, showsTheClassesOfAGroupWhenItsCounterIsClicked)
{
    const auto& rows = desk.shell().engine().content().rows;
    desk.shell().engine().Label2_Click(rows[1].boxes[0].group.value());
    EXPECT_EQ(desk.messages, QStringList({"Salles Occupées: G2\tMartin\r\nG3\tMartin"}));
}

TEST_P(TheShell, servesAChoiceMadeInTheMiddleOfARedrawAtOnce)
{
    // While the first row of week A is drawn, the user asks for Tuesday.
    bool asked = false;
    desk.whileYielding = [&] {
        if (!std::exchange(asked, true)) {
            desk.form().CbJour.setListIndex(1);
        }
    };
    desk.form().OptA().select();
    const QJsonObject plan = desk.plan();
    EXPECT_EQ(shownRooms(plan), QStringList({"A2", "B1", "B2", "C1"}));
    EXPECT_EQ(boxTexts(plan, "A2").keys(), QList<int>({2}));
    EXPECT_TRUE(boxTexts(plan, "C1").isEmpty());
}

TEST_P(TheShell, servesAZoneChosenInTheMiddleOfTheRedrawOfAnother)
{
    desk.form().Total_L_P.setText("1");
    bool chosen = false;
    desk.whileYielding = [&] {
        if (!std::exchange(chosen, true)) {
            desk.form().cb_Locaux.setListIndex(2);
        }
    };
    desk.form().cb_Locaux.setListIndex(1);
    const QJsonObject plan = desk.plan();
    EXPECT_EQ(shownRooms(plan), QStringList({"B2"}));
    EXPECT_EQ(plan["page"]["row0_room"].toString(), "B1");
    EXPECT_EQ(plan["page"]["offset"].toInt(), 0);
    EXPECT_FALSE(plan["page"]["previous_enabled"].toBool(true));
}

TEST_P(TheShell, servesTheSecondDigitOfTheRoomsPerPageWhileTheFirstIsDrawn)
{
    bool typed = false;
    desk.whileYielding = [&] {
        if (!std::exchange(typed, true)) {
            desk.form().Total_L_P.setText("29");
        }
    };
    desk.form().Total_L_P.setText("2");
    EXPECT_EQ(shownRooms(desk.plan()), QStringList({"A2", "B1", "B2", "C1"}));
    EXPECT_EQ(desk.shell().engine().state().page.PageOffset, 0);
}

TEST_P(TheShell, keepsTheExamWeekThatIsChosenWhileTeachingIsDrawn)
{
    form::PlanForm& form = desk.form();
    form.Check2.setChecked(true); // so that the picker's change redraws
    form.OpExam().select();
    bool pressed = false;
    desk.whileYielding = [&] {
        if (!std::exchange(pressed, true)) {
            EXPECT_TRUE(form.OpEns().isSelected());
            form.OpExam().select();
        }
    };
    form.OpEns().select();
    EXPECT_TRUE(pressed);
    EXPECT_TRUE(form.OpExam().isSelected());
    EXPECT_TRUE(form.Combo10.visible);
    // Exam week 1 is that of Monday, 9 June 2025, and opens on its second day.
    EXPECT_EQ(form.Label4[1].caption, "09/JUIN/2025");
    EXPECT_EQ(form.Label4[3].caption, "14/JUIN/2025");
    EXPECT_EQ(desk.shell().engine().state().period.CurrentDate, QDate(2025, 6, 9));
    EXPECT_EQ(form.DTPicker1.value(), QDate(2025, 6, 10));
    EXPECT_EQ(form.CbJour.text(), "Mardi");
}
