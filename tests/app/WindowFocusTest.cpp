// The focus stays where the user works, however often the plan is laid out anew meanwhile.

#include "app/WindowDesk.h"

#include <QCalendarWidget>

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
    picker->setFocus(); // which selects the day
    hands.type("22");
    EXPECT_TRUE(until([&] { return plan()["date"].toString() == "2025-03-22"; }));
    changeRows(form(), window());
    hands.type("04");
    EXPECT_TRUE(until([&] { return plan()["date"].toString() == "2025-04-22"; }));
    hands.type("2024");
    EXPECT_TRUE(until([&] { return plan()["date"].toString() == "2024-04-22"; }));
    EXPECT_TRUE(picker->hasFocus());
}

namespace
{

/// The window with the date picker in use: it shows Monday, 17 March 2025.
class TheDatePicker : public TheWindow
{
protected:
    void show()
    {
        open();
        hands.click(control<QCheckBox>("Check2"));
        picker = control<QDateEdit>("DTPicker1");
        ASSERT_TRUE(until([this] { return picker->isVisible(); }));
    }
    /// In the day, the first part of the text.
    void clickIntoTheDay() const
    {
        hands.click(picker->mapToGlobal(QPoint(12, picker->height() / 2)));
    }
    [[nodiscard]] bool reaches(const QString& date)
    {
        return until([&] { return plan()["date"].toString() == date; });
    }

    QDateEdit* picker = nullptr;
};

} // namespace

TEST_F(TheDatePicker, takesAWholeDateTypedOverTheOldOne)
{
    show();
    for (const auto& [typed, date] :
         {std::pair("27112026", "2026-11-27"), std::pair("31/12/2026", "2026-12-31"),
          std::pair("01-02-2027", "2027-02-01")}) {
        hands.replaceText(picker, typed);
        EXPECT_TRUE(reaches(date)) << typed;
    }
    EXPECT_EQ(form().CbJour.text(), "Lundi"); // 1 February 2027
}

TEST_F(TheDatePicker, takesAWholeDateTypedFastAfterTab)
{
    show();
    control<QCheckBox>("Check2")->setFocus();
    hands.press({"Tab", "2", "6", "1", "1", "2", "0", "2", "6"});
    EXPECT_TRUE(reaches("2026-11-26"));
    EXPECT_TRUE(picker->hasFocus());
    hands.press({"Tab"}); // and on, as one date
    EXPECT_TRUE(until([this] { return control<QPushButton>("Today")->hasFocus(); }));
    hands.press({"shift+Tab", "0", "1", "0", "3", "2", "7", "Return"});
    EXPECT_TRUE(reaches("2027-03-01"));
}

TEST_F(TheDatePicker, opensItsCalendarWithAltAndDown)
{
    show();
    picker->setFocus();
    hands.press({"alt+Down"});
    ASSERT_TRUE(until([this] { return picker->calendarWidget()->isVisible(); }));
    hands.press({"Right", "Return"}); // the next day
    EXPECT_TRUE(reaches("2025-03-18"));
    EXPECT_TRUE(until([this] { return !picker->calendarWidget()->isVisible(); }));
    hands.press({"alt+Down"});
    ASSERT_TRUE(until([this] { return picker->calendarWidget()->isVisible(); }));
    hands.press({"Escape"});
    EXPECT_TRUE(until([this] { return !picker->calendarWidget()->isVisible(); }));
    EXPECT_EQ(plan()["date"].toString(), "2025-03-18");
}

TEST_F(TheDatePicker, takesAShortYearWithEnterOrTab)
{
    show();
    hands.replaceText(picker, "28/02/27");
    hands.press({"Return"});
    EXPECT_TRUE(reaches("2027-02-28"));
    hands.replaceText(picker, "010327");
    hands.press({"Tab"});
    EXPECT_TRUE(reaches("2027-03-01"));
    EXPECT_TRUE(until([this] { return !picker->hasFocus(); }));
}

TEST_F(TheDatePicker, keepsItsDateWhenTheTypedOneDoesNotExist)
{
    show();
    const std::uint64_t before = redraws();
    hands.replaceText(picker, "31/02/2026");
    hands.press({"Return"});
    EXPECT_TRUE(until([this] { return picker->text() == "17/03/2025"; }));
    hands.replaceText(picker, "2");
    EXPECT_TRUE(until([this] { return picker->text() == "2"; }));
    hands.press({"Escape"});
    EXPECT_TRUE(until([this] { return picker->text() == "17/03/2025"; }));
    EXPECT_EQ(redraws(), before);
}

TEST_F(TheDatePicker, takesADateTypedAfterAClick)
{
    show();
    clickIntoTheDay();
    hands.type("29/11/2026");
    EXPECT_TRUE(reaches("2026-11-29"));
}

TEST_F(TheDatePicker, takesTheDayAloneWithEnter)
{
    show();
    clickIntoTheDay();
    hands.type("21");
    hands.press({"Return"});
    EXPECT_TRUE(reaches("2025-03-21"));
}

TEST_F(TheDatePicker, takesASeparatorAfterAPartThatIsComplete)
{
    show();
    picker->setFocus(); // which selects the day
    hands.type("21/04");
    EXPECT_TRUE(reaches("2025-04-21"));
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

TEST_F(TheWindow, givesTheFocusToColorerWhenItIsOpened)
{
    open();
    EXPECT_TRUE(until([&] { return control<QCheckBox>("Colorer")->hasFocus(); }));
}

TEST_F(TheWindow, givesTheFocusToColorerAfterAnActionThatAsksForIt)
{
    open();
    control<QSpinBox>("Total_L_P")->setFocus();
    ASSERT_TRUE(until([&] { return control<QSpinBox>("Total_L_P")->hasFocus(); }));
    window().shell().MatchControlBackgrounds();
    EXPECT_TRUE(control<QSpinBox>("Total_L_P")->hasFocus());
    hands.press({"F2"});
    EXPECT_TRUE(until([&] { return control<QCheckBox>("Colorer")->hasFocus(); }));
}

TEST_F(TheWindow, givesTheFocusToColorerWhenItIsResized)
{
    open();
    control<QSpinBox>("Total_L_P")->setFocus();
    ASSERT_TRUE(until([&] { return control<QSpinBox>("Total_L_P")->hasFocus(); }));
    window().resize(1500, 800);
    EXPECT_TRUE(until([&] { return control<QCheckBox>("Colorer")->hasFocus(); }));
}

TEST_F(TheDatePicker, takesALongMonthsLastDayAfterAClick)
{
    show();
    hands.replaceText(picker, "27112026");
    ASSERT_TRUE(reaches("2026-11-27"));
    clickIntoTheDay();
    hands.type("31/12/2026");
    EXPECT_TRUE(reaches("2026-12-31")) << picker->text().toStdString();
}

TEST_F(TheDatePicker, takesAShortYearAfterAClick)
{
    show();
    clickIntoTheDay();
    hands.type("29/11/26");
    hands.press({"Return"});
    EXPECT_TRUE(reaches("2026-11-29")) << picker->text().toStdString();
}
