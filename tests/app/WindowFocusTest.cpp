// The focus stays where the user works, however often the plan is laid out anew meanwhile.

#include "app/WindowDesk.h"

using namespace test;

namespace
{

/// Another number of rows: the plan is laid out anew, the window keeps its size.
void changeRows(form::PlanForm& form, app::PlClasse& window)
{
    window.forward([&] { form.Total_L_P.setText("2"); });
}

} // namespace

TEST_F(TheWindow, takesTheSecondDigitAfterTheFirstOneIsDrawn)
{
    open();
    changeRows(form(), window());
    auto* lines = control<QSpinBox>("Total_L_P");
    hands.replaceText(lines, "1");
    expectRooms({"A2"});
    hands.type("5");
    EXPECT_TRUE(until([&] { return form().Total_L_P.text() == "15"; }));
    expectRooms({"A2", "B1", "B2", "C1"});
    EXPECT_TRUE(lines->hasFocus());
}

TEST_F(TheWindow, takesADateTypedPartByPart)
{
    open();
    hands.click(control<QCheckBox>("Check2"));
    auto* picker = control<QDateEdit>("DTPicker1");
    ASSERT_TRUE(until([&] { return picker->isVisible(); }));
    changeRows(form(), window());
    picker->setFocus(Qt::TabFocusReason); // which selects the day
    hands.type("22");
    EXPECT_TRUE(until([&] { return plan()["date"].toString() == "2025-03-22"; }));
    changeRows(form(), window());
    hands.type("04");
    EXPECT_TRUE(until([&] { return plan()["date"].toString() == "2025-04-22"; }));
    hands.type("2024");
    EXPECT_TRUE(until([&] { return plan()["date"].toString() == "2024-04-22"; }));
    EXPECT_TRUE(picker->hasFocus());
}

TEST_F(TheWindow, stepsThroughTheZonesWithTheArrowKeys)
{
    open();
    auto* zones = control<QComboBox>("cb_Locaux");
    zones->setFocus();
    hands.press({"Down"});
    expectRooms({"A2"});
    hands.press({"Down"});
    expectRooms({"B2"});
    hands.press({"Down"});
    EXPECT_TRUE(until([&] { return form().cb_Locaux.text() == "3"; }));
    hands.press({"Up", "Up", "Up"});
    expectRooms({"A2", "B1", "B2", "C1"});
    EXPECT_TRUE(zones->hasFocus());
}

TEST_F(TheWindow, givesTheFocusToColorerWhenItIsResized)
{
    open();
    control<QSpinBox>("Total_L_P")->setFocus();
    ASSERT_TRUE(until([&] { return control<QSpinBox>("Total_L_P")->hasFocus(); }));
    window().resize(1500, 800);
    EXPECT_TRUE(until([&] { return control<QCheckBox>("Colorer")->hasFocus(); }));
}
