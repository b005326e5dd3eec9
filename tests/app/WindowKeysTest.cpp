// The keys of the window, from wherever the focus is. Today is Wednesday, 19 March 2025.

#include "app/WindowKeys.h"

#include "app/WindowDesk.h"

#include <QDialog>

using namespace test;

namespace
{

class TheWindowsKeys : public TheWindow
{
protected:
    void expectDay(const QString& day)
    {
        static_cast<void>(until([&] { return form().CbJour.text() == day; }));
        EXPECT_EQ(form().CbJour.text(), day);
    }
};

} // namespace

TEST_F(TheWindowsKeys, chooseTheDaysByTheirNumber)
{
    open();
    const QStringList days{"Lundi", "Mardi", "Mercredi", "Jeudi", "Vendredi", "Samedi"};
    for (const char* focus : {"PlanView", "Total_L_P"}) {
        control<QWidget>(focus)->setFocus();
        for (int day = 5; day >= 0; --day) {
            hands.press({QString("ctrl+%1").arg(day + 1)});
            expectDay(days.at(day));
        }
    }
    EXPECT_EQ(form().Total_L_P.text(), "19");
    expectTexts("A2", {{1, "G1\r\n Dupont/Durand\r\n [Algèbre]\r\n"}});
}

TEST_F(TheWindowsKeys, chooseTheDaysWithTheKeysOfAFrenchKeyboard)
{
    open();
    hands.press({"ctrl+minus"});
    expectDay("Samedi");
    hands.press({"ctrl+apostrophe"});
    expectDay("Jeudi");
    hands.press({"ctrl+ampersand"});
    expectDay("Lundi");
}

TEST_F(TheWindowsKeys, chooseTheShownDayAnew)
{
    open();
    const std::uint64_t before = redraws();
    hands.press({"ctrl+1"});
    EXPECT_TRUE(until([&] { return redraws() == before + 1; }));
}

TEST_F(TheWindowsKeys, turnThePagesLikeTheButtons)
{
    setup.set("Total_L_P", "2");
    open();
    for (const char* focus : {"PlanView", "Total_L_P", "CbJour"}) {
        control<QWidget>(focus)->setFocus();
        hands.press({"ctrl+Next"});
        expectRooms({"C1"});
        hands.press({"ctrl+Next"}); // the button is greyed
        hands.press({"ctrl+Prior"});
        expectRooms({"A2", "B1"});
    }
    EXPECT_EQ(form().Total_L_P.text(), "2");
    EXPECT_EQ(form().CbJour.text(), "Lundi");
}

TEST_F(TheWindowsKeys, leadToTheDateAndTickIt)
{
    open();
    hands.press({"ctrl+d"});
    auto* picker = control<QDateEdit>("DTPicker1");
    ASSERT_TRUE(until([&] { return picker->hasFocus(); }));
    EXPECT_TRUE(control<QCheckBox>("Check2")->isChecked());
    hands.type("22042025");
    EXPECT_TRUE(until([&] { return plan()["date"].toString() == "2025-04-22"; }));
    view()->setFocus();
    hands.press({"ctrl+d"}); // stays ticked
    ASSERT_TRUE(until([&] { return picker->hasFocus(); }));
    EXPECT_TRUE(control<QCheckBox>("Check2")->isChecked());
}

TEST_F(TheWindowsKeys, printThePageAndAllPages)
{
    setup.set("Total_L_P", "2");
    open();
    QStringList titles;
    const DialogAnswer answer([&](QDialog& dialog) {
        titles << dialog.windowTitle();
        dialog.reject();
    });
    hands.press({"ctrl+p"});
    EXPECT_TRUE(until([&] { return answer.count() == 1; }));
    ASSERT_TRUE(until([&] { return QApplication::activeModalWidget() == nullptr; }));
    hands.press({"ctrl+shift+p"});
    EXPECT_TRUE(until([&] { return answer.count() == 2; }));
    ASSERT_TRUE(until([&] { return QApplication::activeModalWidget() == nullptr; }));
    EXPECT_EQ(titles.size(), 2);
}
