// "Chercher" in a user's hands.

#include "app/asking/FindWindow.h"

#include "app/asking/AskingDesk.h"

using namespace test;

namespace
{

class TheFinding : public TheAnswers
{
protected:
    app::FindWindow* asked() { return ask<app::FindWindow>({"ctrl+f"}, "FindWindow"); }
};

} // namespace

TEST_F(TheFinding, showsTheShownDayFirst)
{
    open();
    ASSERT_NE(asked(), nullptr);
    hands.type("roux");
    expectRows("Found", {"Le jour affiché, lundi",
                         "Enseignant Roux|lundi 8h30–10h00, semaine A|C1|G3, Chimie",
                         "Dans la semaine", "Enseignant Roux|mardi 10h15–11h45|A2|G3, Chimie"});
}

TEST_F(TheFinding, takesNoNoticeOfAccentsAndCapitals)
{
    open();
    const app::FindWindow* answers = asked();
    hands.type("ALGEB");
    expectRows("Found", {"Le jour affiché, lundi",
                         "Matière Algèbre|lundi 8h30–10h00|A2|G1, Dupont, Durand"});
    EXPECT_TRUE(status(*answers).startsWith("1 nom trouvé")) << status(*answers).toStdString();
}

TEST_F(TheFinding, goesToTheBoxAndFramesIt)
{
    open();
    const app::FindWindow* answers = asked();
    hands.type("roux");
    ASSERT_TRUE(until([&] { return rows("Found").size() == 4; }));
    hands.press({"Down", "Down", "Down", "Return"}); // into the list, to the heading, beyond it
    ASSERT_TRUE(until([&] { return day() == "Mardi" && !view()->framed().isEmpty(); }));
    EXPECT_FALSE(answers->isVisible());
    const auto cell = view()->table().cellOf("A2", 2);
    ASSERT_TRUE(cell);
    EXPECT_EQ(view()->framed(), view()->table().placeOf(*cell));
    hands.press({"Escape"}); // takes the frame away
    EXPECT_TRUE(until([&] { return view()->framed().isEmpty(); }));
}

TEST_F(TheFinding, wantsThreeLetters)
{
    open();
    const app::FindWindow* answers = asked();
    hands.type("ro");
    EXPECT_TRUE(until([&] { return status(*answers).startsWith("Tapez au moins trois lettres"); }));
    EXPECT_EQ(rows("Found"), QStringList());
    hands.type("zz");
    EXPECT_TRUE(
        until([&] { return status(*answers).startsWith("Personne ni rien ne porte ce nom"); }));
}

TEST_F(TheFinding, takesANameThatHasNoThreeLetters)
{
    open();
    const app::FindWindow* answers = asked();
    hands.type("g1");
    expectRows("Found",
               {"Le jour affiché, lundi", "Classe G1|lundi 8h30–10h00|A2|Algèbre, Dupont, Durand"});
    EXPECT_TRUE(status(*answers).startsWith("1 nom trouvé")) << status(*answers).toStdString();
}

TEST_F(TheFinding, tellsOfClassesThatAreTogetherInOneRow)
{
    open();
    ASSERT_NE(asked(), nullptr);
    hands.type("mart");
    expectRows("Found", {"Le jour affiché, lundi",
                         "Enseignant Martin|lundi 14h00–17h00|B1|G2, G3, Analyse"});
}

TEST_F(TheFinding, leadsToSomebodysWeek)
{
    open();
    ASSERT_NE(asked(), nullptr);
    hands.type("roux");
    ASSERT_TRUE(until([&] { return rows("Found").size() == 4; }));
    hands.press({"alt+s"});
    ASSERT_TRUE(until([&] {
        const auto* week = window().findChild<QWidget*>("WeekWindow");
        return week != nullptr && week->isActiveWindow();
    }));
    EXPECT_EQ(control<QComboBox>("WeekName")->currentText(), "Roux");
}
