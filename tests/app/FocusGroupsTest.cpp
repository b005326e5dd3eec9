// F6 from part to part of the window.

#include "app/FocusGroups.h"

#include "app/WindowDesk.h"

using namespace test;

namespace
{

class TheParts : public TheWindow
{
protected:
    /// The names of the widgets with the focus after each press.
    QStringList after(const QString& key, int times)
    {
        QStringList names;
        for (int press = 0; press < times; ++press) {
            const QWidget* before = QApplication::focusWidget();
            hands.press({key});
            EXPECT_TRUE(until([&] { return QApplication::focusWidget() != before; }));
            names << QApplication::focusWidget()->objectName();
        }
        return names;
    }

    const QStringList parts{"CbTranche", "CbJour",    "OptFixe", "XOpCl",
                            "cb_Locaux", "Total_L_P", "Colorer", "Check1",
                            "Command1",  "PlanView",  "Label20", "Questions"};
};

} // namespace

TEST_F(TheParts, followOneAnotherWithF6)
{
    open();
    control<QWidget>("Questions")->setFocus();
    EXPECT_EQ(after("F6", 12), parts);
}

TEST_F(TheParts, goBackWithShiftAndF6)
{
    open();
    control<QWidget>("CbTranche")->setFocus();
    QStringList back(parts.rbegin(), parts.rend());
    EXPECT_EQ(after("shift+F6", 12), back);
}

TEST_F(TheParts, areLeftFromAnyControlInThem)
{
    open();
    control<QWidget>("Today")->setFocus(); // in the group of the day
    EXPECT_EQ(after("F6", 1), QStringList{"OptFixe"});
    control<QWidget>("Today")->setFocus();
    EXPECT_EQ(after("shift+F6", 1), QStringList{"CbTranche"});
}

TEST_F(TheParts, showWhereTheFocusIsInThePlan)
{
    open();
    const auto isMarked = [this] {
        const QImage plan = view()->grab().toImage();
        return plan.pixelColor(1, plan.height() / 2) == QColor(16, 42, 110);
    };
    control<QWidget>("Command1")->setFocus();
    EXPECT_FALSE(isMarked());
    EXPECT_EQ(after("F6", 1), QStringList{"PlanView"});
    EXPECT_TRUE(until(isMarked));
    hands.press({"Down"}); // the cell's ring instead
    EXPECT_TRUE(until([&] { return !isMarked(); }));
}

TEST_F(TheParts, areEnteredByTheKeysOfTheirTitles)
{
    open();
    control<QWidget>("Today")->setFocus();
    hands.press({"alt+j"});
    EXPECT_TRUE(until([this] { return control<QWidget>("CbJour")->hasFocus(); }));
    hands.press({"alt+p"});
    EXPECT_TRUE(until([this] { return control<QWidget>("CbTranche")->hasFocus(); }));
}

TEST_F(TheParts, areLeftForThePlanWithEscape)
{
    open();
    for (const char* name : {"CbJour", "Total_L_P", "Command1", "Colorer"}) {
        control<QWidget>(name)->setFocus();
        hands.press({"Escape"});
        EXPECT_TRUE(until([this] { return view()->hasFocus(); })) << name;
    }
    EXPECT_EQ(form().Total_L_P.text(), "19");
}
