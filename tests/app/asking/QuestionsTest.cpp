// The questions of the window: their menu, their keys, and the menu of a place of the plan.

#include "app/asking/Questions.h"

#include "app/asking/AskingDesk.h"

#include <QAction>

using namespace test;

namespace
{

class TheQuestions : public TheAnswers
{
protected:
    QMenu* menu() { return control<QMenu>("QuestionMenu"); }
    static QStringList textsOf(const QMenu& menu)
    {
        QStringList texts;
        for (const QAction* action : menu.actions()) {
            texts << action->text();
        }
        return texts;
    }
    /// Opens the menu of a place of the plan: the middle of a slot's column in a room's row.
    QMenu* menuAt(const QString& room, int slot)
    {
        const auto cell = view()->table().cellOf(room, slot);
        EXPECT_TRUE(cell);
        hands.rightClick(view()->onScreen(*cell).center());
        QMenu* found = nullptr;
        EXPECT_TRUE(until([&] {
            found = window().findChild<QMenu*>("PlanMenu");
            return found != nullptr && found->isVisible();
        }));
        return found;
    }
};

} // namespace

TEST_F(TheQuestions, standInOneMenuEachWithItsKey)
{
    open();
    EXPECT_EQ(textsOf(*menu()),
              QStringList({"Salle &libre…", "&Enseignant, classe, salle…", "&Semaine de…",
                           "&Toutes les salles de la semaine", "", "&Conflits…", "&Occupation…"}));
    QStringList keys;
    for (const QAction* action : menu()->actions()) {
        keys << action->shortcut().toString();
    }
    EXPECT_EQ(keys, QStringList({"Ctrl+L", "Ctrl+F", "Ctrl+W", "Ctrl+Shift+W", "", "", ""}));
}

TEST_F(TheQuestions, openTheSameWindowAgain)
{
    open();
    const auto* first = ask<QWidget>({"ctrl+f"}, "FindWindow");
    ASSERT_NE(first, nullptr);
    hands.press({"Escape"});
    EXPECT_TRUE(until([&] { return !first->isVisible() && window().isActiveWindow(); }));
    EXPECT_EQ(ask<QWidget>({"ctrl+f"}, "FindWindow"), first);
    EXPECT_EQ(window().findChildren<QWidget*>("FindWindow").size(), 1);
}

TEST_F(TheQuestions, areAskedFromEachOthersWindows)
{
    open();
    ASSERT_NE(ask<QWidget>({"ctrl+f"}, "FindWindow"), nullptr);
    EXPECT_NE(ask<QWidget>({"ctrl+l"}, "FreeRoomsWindow"), nullptr);
    EXPECT_NE(ask<QWidget>({"ctrl+w"}, "WeekWindow"), nullptr);
}

TEST_F(TheQuestions, areAboutTheBoxUnderTheMouse)
{
    open();
    const QMenu* menu = menuAt("A2", 1);
    ASSERT_NE(menu, nullptr);
    // The gestures of absence follow, behind a line.
    EXPECT_EQ(textsOf(*menu).mid(0, 5),
              QStringList({"Salle &libre, lundi 8h30–10h00…", "Semaine de la salle A2",
                           "Semaine de la classe G1", "Semaine de Dupont", ""}));
}
