// The wheel over lists, numbers and dates.

#include "app/WheelGuard.h"

#include "app/WindowDesk.h"

#include <QScrollBar>

using namespace test;

namespace
{

class TheWheel : public TheWindow
{
protected:
    void turnOver(const QWidget* widget, bool towardsUser = true) const
    {
        hands.turnWheel(widget->mapToGlobal(widget->rect().center()), towardsUser);
    }
    /// Until the events sent so far have come: keys come behind them.
    void settle()
    {
        const std::uint64_t before = redraws();
        hands.press({"F2"});
        ASSERT_TRUE(until([&] { return redraws() > before; }));
    }
};

} // namespace

TEST_F(TheWheel, changesNothingWithoutTheFocus)
{
    open();
    window().forward([this] { form().Check2.setChecked(true); });
    auto* picker = control<QDateEdit>("DTPicker1");
    ASSERT_TRUE(until([&] { return picker->isVisible(); }));
    control<QWidget>("Colorer")->setFocus();
    for (const char* name : {"CbJour", "CbTranche", "cb_Locaux", "Total_L_P", "DTPicker1"}) {
        turnOver(control<QWidget>(name));
        turnOver(control<QWidget>(name), false);
        turnOver(control<QWidget>(name), false);
    }
    settle();
    EXPECT_EQ(form().CbJour.text(), "Lundi");
    EXPECT_EQ(form().CbTranche.text(), "Printemps");
    EXPECT_EQ(form().cb_Locaux.text(), "0");
    EXPECT_EQ(form().Total_L_P.text(), "19");
    EXPECT_EQ(form().DTPicker1.value(), QDate(2025, 3, 17));
    EXPECT_TRUE(control<QWidget>("Colorer")->hasFocus());
}

TEST_F(TheWheel, turnsTheOneThatHasTheFocus)
{
    open();
    auto* lines = control<QSpinBox>("Total_L_P");
    lines->setFocus();
    turnOver(lines);
    EXPECT_TRUE(until([&] { return form().Total_L_P.text() == "18"; }));
    auto* days = control<QComboBox>("CbJour");
    days->setFocus();
    turnOver(days);
    EXPECT_TRUE(until([&] { return form().CbJour.text() == "Mardi"; }));
}

TEST_F(TheWheel, changesNothingInTheWindowsThatAnswerEither)
{
    open();
    hands.press({"ctrl+l"});
    ASSERT_TRUE(until([this] {
        const auto* answers = window().findChild<QWidget*>("FreeRoomsWindow");
        return answers != nullptr && answers->isActiveWindow() &&
               answers->windowHandle()->isExposed();
    }));
    auto* places = control<QSpinBox>("AskedPlaces");
    auto* day = control<QComboBox>("AskedDay");
    const QString shownDay = day->currentText();
    turnOver(places, false);
    turnOver(day);
    hands.press({"Escape"}); // behind them
    ASSERT_TRUE(until([this] { return !control<QWidget>("FreeRoomsWindow")->isVisible(); }));
    EXPECT_EQ(places->value(), 0);
    EXPECT_EQ(day->currentText(), shownDay);
}

TEST_F(TheWheel, stillScrollsThePlan)
{
    open({900, 420});
    QScrollBar* down = view()->verticalScrollBar();
    ASSERT_GT(down->maximum(), 0);
    down->setValue(0);
    turnOver(view()->viewport());
    EXPECT_TRUE(until([&] { return down->value() > 0; }));
}
