// "Salle libre" in a user's hands. The tiny faculty on Monday: A2 and C1 are held in the first
// slot, B2 in the second.

#include "app/asking/FreeRoomsWindow.h"

#include "app/asking/AskingDesk.h"

#include <QLineEdit>

using namespace test;

namespace
{

class TheFreeRooms : public TheAnswers
{
protected:
    app::FreeRoomsWindow* asked()
    {
        return ask<app::FreeRoomsWindow>({"ctrl+l"}, "FreeRoomsWindow");
    }
};

} // namespace

TEST_F(TheFreeRooms, areFoundByThreeActionsOfTheKeyboard)
{
    open();
    const app::FreeRoomsWindow* answers = asked(); // one
    hands.type("lundi,8h30,25");                   // two
    expectRows("FreeRooms", {"A1|30|8h30–17h15|1|INFO", "B1|100|8h30–14h00|2|INFO"});
    EXPECT_TRUE(status(*answers).startsWith("2 salles libres, 1 prise "))
        << status(*answers).toStdString();
    EXPECT_TRUE(status(*answers).contains("période Printemps, lue à "));
    hands.press({"Down", "Down", "Return"}); // three: the second one
    EXPECT_TRUE(until([&] { return !answers->isVisible() && !view()->framed().isEmpty(); }));
    EXPECT_EQ(view()->framedRoom(), "B1");
}

TEST_F(TheFreeRooms, beginWithTheFirstSlotOfTheShownDay)
{
    open();
    ASSERT_TRUE(hands.choose(control<QComboBox>("CbJour"), 1));
    ASSERT_NE(asked(), nullptr);
    EXPECT_EQ(control<QComboBox>("AskedDay")->currentText(), "Mardi");
    EXPECT_EQ(control<QComboBox>("AskedFrom")->currentText(), "8h30");
    EXPECT_EQ(control<QComboBox>("AskedTo")->currentText(), "10h00");
    // On Tuesday A2 is held in the second slot; those with the fewest places come first.
    expectRows("FreeRooms",
               {"C1|12|8h30–17h15|3|", "B2|20|8h30–17h15|2|", "A1|30|8h30–17h15|1|INFO",
                "A2|40|8h30–10h15|1|MATH", "B1|100|8h30–17h15|2|INFO"});
}

TEST_F(TheFreeRooms, takeNoHourForPlaces)
{
    open();
    ASSERT_NE(asked(), nullptr);
    hands.type("17/3,14h-16h,zone,2");
    EXPECT_TRUE(until([this] { return control<QComboBox>("AskedTo")->currentText() == "16h00"; }));
    EXPECT_TRUE(until([this] { return control<QComboBox>("AskedZone")->currentText() == "2"; }));
    EXPECT_EQ(control<QSpinBox>("AskedPlaces")->value(), 0);
    hands.replaceText(control<QLineEdit>("QuickQuestion"), "lundi");
    EXPECT_TRUE(
        until([this] { return control<QComboBox>("AskedZone")->currentText() == "Toutes"; }));
    EXPECT_FALSE(control<QCheckBox>("AskedByDate")->isChecked());
}

TEST_F(TheFreeRooms, sayThatAZoneOrADateIsNone)
{
    open();
    const app::FreeRoomsWindow* answers = asked();
    hands.type("zone,7");
    EXPECT_TRUE(until([&] { return status(*answers).contains("Aucune salle n’est de la zone"); }))
        << status(*answers).toStdString();
    EXPECT_EQ(rows("FreeRooms"), QStringList());
    hands.replaceText(control<QLineEdit>("QuickQuestion"), "7/6/2025,9h");
    EXPECT_TRUE(until([&] {
        return status(*answers).contains("hors de la période « Printemps »");
    })) << status(*answers).toStdString();
}

TEST_F(TheFreeRooms, tellOnDemandWhyOthersAreTaken)
{
    open();
    ASSERT_NE(asked(), nullptr);
    hands.type("lundi,8h30,35");
    expectRows("FreeRooms", {"B1|100|8h30–14h00|2|INFO"});
    hands.click(control<QCheckBox>("ShowTaken"));
    expectRows("FreeRooms", {"B1|100|8h30–14h00|2|INFO",
                             "A2|40|prise : G1, Dupont et Durand, jusqu’à 10h00|1|MATH"});
}

TEST_F(TheFreeRooms, countMakeUpsWhereADateIsAsked)
{
    open();
    ASSERT_NE(asked(), nullptr);
    hands.type("17/3/2025,10h15,35"); // A2 holds a make-up then
    expectRows("FreeRooms", {"B1|100|8h30–14h00|2|INFO"});
    hands.replaceText(control<QLineEdit>("QuickQuestion"), "lundi,10h15,35");
    expectRows("FreeRooms", {"A2|40|10h00–17h15|1|MATH", "B1|100|8h30–14h00|2|INFO"});
}

TEST_F(TheFreeRooms, sayWhatIsWrongWithTheQuestion)
{
    open();
    const app::FreeRoomsWindow* answers = asked();
    hands.replaceText(control<QComboBox>("AskedFrom")->lineEdit(), "25h70");
    EXPECT_TRUE(until([&] { return status(*answers).contains("« 25h70 » n’est pas une heure"); }))
        << status(*answers).toStdString();
    EXPECT_EQ(rows("FreeRooms"), QStringList());
    hands.replaceText(control<QLineEdit>("QuickQuestion"), "lundi,11h-9h");
    EXPECT_TRUE(until([&] {
        return status(*answers).contains("La fin, 9h00, n’est pas après le début, 11h00");
    })) << status(*answers).toStdString();
    hands.replaceText(control<QLineEdit>("QuickQuestion"), "lundi,9h-11h,25h");
    EXPECT_TRUE(until([&] {
        return status(*answers).startsWith("« 25h » n’est ni une heure, ni une date");
    })) << status(*answers).toStdString();
    EXPECT_EQ(rows("FreeRooms"), QStringList());
    hands.replaceText(control<QLineEdit>("QuickQuestion"), "lundi,9h-11h,tableau");
    EXPECT_TRUE(until([&] { return status(*answers).contains("pas compris : « tableau »"); }));
}

TEST_F(TheFreeRooms, areNeverThoseOfATimetableThatCannotBeRead)
{
    open();
    database.execute("drop table emplois");
    const app::FreeRoomsWindow* answers = asked();
    EXPECT_TRUE(until([&] { return status(*answers).contains("n’a pas pu être lu"); }))
        << status(*answers).toStdString();
    EXPECT_EQ(rows("FreeRooms"), QStringList());
    EXPECT_FALSE(window().failed());
}

TEST_F(TheFreeRooms, sayWhichSeancesTheyDoNotCount)
{
    database.execute("update emplois set Seance='Mradi1' where Salle='C1'");
    open();
    const app::FreeRoomsWindow* answers = asked();
    ASSERT_TRUE(until([&] { return status(*answers).contains("sans jour ne compte"); }))
        << status(*answers).toStdString();
    const auto* line = answers->findChild<QLabel*>("AnswerStatus");
    EXPECT_TRUE(line->accessibleDescription().contains("« Mradi1 » ne nomme aucun jour"))
        << line->accessibleDescription().toStdString();
}

TEST_F(TheFreeRooms, areNotToldForADateWhoseMakeUpsCannotBeRead)
{
    open();
    database.execute("drop table ratrap");
    const app::FreeRoomsWindow* answers = asked();
    hands.type("17/3/2025,10h15");
    EXPECT_TRUE(until([&] {
        return status(*answers).contains("« ratrap » ne se laisse pas lire");
    })) << status(*answers).toStdString();
    EXPECT_EQ(rows("FreeRooms"), QStringList());
}

TEST_F(TheFreeRooms, areReadAnewOnceThePlanIsDrawnAgain)
{
    open();
    const app::FreeRoomsWindow* answers = asked();
    hands.type("lundi,8h30,35");
    expectRows("FreeRooms", {"B1|100|8h30–14h00|2|INFO"});
    hands.press({"Escape"});
    ASSERT_TRUE(until([&] { return !answers->isVisible() && window().isActiveWindow(); }));
    database.execute("delete from emplois where Salle = 'A2'");
    ASSERT_TRUE(hands.choose(control<QComboBox>("CbJour"), 1));
    ASSERT_NE(asked(), nullptr);
    hands.type("lundi,8h30,35");
    expectRows("FreeRooms", {"A2|40|8h30–17h15|1|MATH", "B1|100|8h30–14h00|2|INFO"});
}

TEST_F(TheFreeRooms, mayBeAskedForFromAPlaceOfThePlan)
{
    open();
    const auto cell = view()->table().cellOf("B1", 2); // empty on Monday
    ASSERT_TRUE(cell);
    hands.rightClick(view()->onScreen(*cell).center());
    QMenu* menu = nullptr;
    ASSERT_TRUE(until([&] {
        menu = window().findChild<QMenu*>("PlanMenu");
        return menu != nullptr && menu->isVisible();
    }));
    EXPECT_EQ(menu->actions().front()->text(), "Salle &libre, lundi 10h15–11h45…");
    hands.press({"Down", "Return"});
    ASSERT_TRUE(until([&] {
        const auto* answers = window().findChild<QWidget*>("FreeRoomsWindow");
        return answers != nullptr && answers->isActiveWindow();
    }));
    EXPECT_EQ(control<QComboBox>("AskedFrom")->currentText(), "10h15");
    EXPECT_EQ(control<QComboBox>("AskedTo")->currentText(), "11h45");
}

TEST_F(TheFreeRooms, mayBeAskedForFromARoomsNameWithoutAnHour)
{
    open();
    const auto room = view()->table().cellOf("B1", 0);
    ASSERT_TRUE(room);
    hands.rightClick(view()->onScreen(*room).center());
    const QMenu* menu = nullptr;
    ASSERT_TRUE(until([&] {
        menu = window().findChild<QMenu*>("PlanMenu");
        return menu != nullptr && menu->isVisible();
    }));
    EXPECT_EQ(menu->actions().front()->text(), "Salle &libre…");
    EXPECT_EQ(menu->actions().at(1)->text(), "Semaine de la salle B1");
    hands.press({"Escape"});
    EXPECT_TRUE(until([this] { return window().findChild<QMenu*>("PlanMenu") == nullptr; }));
    EXPECT_FALSE(window().failed());
}
