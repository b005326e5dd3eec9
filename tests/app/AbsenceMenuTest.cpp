// The gestures of absence in the menu of a box, with the keyboard alone.

#include "app/AbsenceMenu.h"

#include "app/WindowDesk.h"

#include <QMenu>

using namespace test;

namespace
{

class TheAbsenceMenu : public TheWindow, public testing::WithParamInterface<DatabaseKind>
{
protected:
    TheAbsenceMenu() : TheWindow(GetParam()) {}

    /// The window, with the cursor on A2 at 8h30, which holds G1: on Monday, 17 March 2025 the
    /// class was absent.
    void begin()
    {
        open();
        view()->setFocus();
        hands.press({"Down"});
        ASSERT_TRUE(until([this] { return view()->cursor().has_value(); }));
    }
    QMenu* menu()
    {
        hands.press({"shift+F10"});
        QMenu* found = nullptr;
        EXPECT_TRUE(until([&] {
            found = window().findChild<QMenu*>("PlanMenu");
            return found != nullptr && found->isVisible() && found->windowHandle()->isExposed();
        }));
        return found;
    }
    /// The two last entries of the cell's menu, "-" before those that are greyed.
    QStringList gestures()
    {
        QStringList texts;
        if (const QMenu* entries = menu()) {
            const QList<QAction*> actions = entries->actions();
            for (const QAction* action : actions.mid(actions.size() - 2)) {
                texts << (action->isEnabled() ? QString() : QString("-")) + action->text();
            }
        }
        hands.press({"Escape"});
        EXPECT_TRUE(until([this] { return window().findChild<QMenu*>("PlanMenu") == nullptr; }));
        return texts;
    }
    [[nodiscard]] QStringList recorded(const QString& table)
    {
        QStringList classes;
        for (const QStringList& row :
             database.read("select Classe from " + table + " order by Classe")) {
            classes << row.first();
        }
        return classes;
    }
    /// Opens the menu and chooses the entry with this letter; then the tables hold these classes.
    void choose(const QString& letter, const QStringList& classes, const QStringList& ofStudents)
    {
        ASSERT_NE(menu(), nullptr);
        hands.press({letter});
        static_cast<void>(until(
            [&] { return recorded("abscence") == classes && recorded("etud_abs") == ofStudents; }));
        EXPECT_EQ(recorded("abscence"), classes);
        EXPECT_EQ(recorded("etud_abs"), ofStudents);
    }

    static inline const QStringList kNone;
};

} // namespace

TEST_P(TheAbsenceMenu, recordsAndTakesBackAsTheClicksDo)
{
    begin();
    EXPECT_EQ(gestures(),
              QStringList({"Retirer l’absence de la &classe G1 le lundi 17/03/2025\tMaj+clic",
                           "Enregistrer l’absence d’étu&diants de la classe G1 le lundi "
                           "17/03/2025\tCtrl+clic"}));
    choose("c", kNone, kNone);
    EXPECT_TRUE(until([this] { // the picture goes, too
        return !window().shell().engine().content().rows.front().boxes.front().classAbsent;
    }));
    choose("c", {"G1"}, kNone);
    choose("d", {"G1"}, {"G1"});
    EXPECT_EQ(view()->table().nameOf(*view()->cursor()),
              "A2, 8h30 à 10h00, G1, Dupont/Durand, Algèbre, Classe absente, Étudiants absents");
    choose("d", {"G1"}, kNone);
}

TEST_P(TheAbsenceMenu, togglesEachClassOfABox)
{
    begin();
    hands.press({"Down", "Right", "Right"}); // B1 at 14h00: G2 and G3
    ASSERT_TRUE(until([this] { return view()->cursor()->row == 1; }));
    EXPECT_EQ(gestures(),
              QStringList({"Enregistrer ou retirer l’absence de chacune des &classes G2, G3 le "
                           "lundi 17/03/2025\tMaj+clic",
                           "Enregistrer ou retirer l’absence d’étu&diants de chacune des classes "
                           "G2, G3 le lundi 17/03/2025\tCtrl+clic"}));
    choose("c", {"G1", "G2", "G3"}, kNone);
    choose("d", {"G1", "G2", "G3"}, {"G2", "G3"});
    choose("c", {"G1"}, {"G2", "G3"});
}

TEST_P(TheAbsenceMenu, saysWhyNothingCanBeMarkedWithoutABox)
{
    begin();
    hands.press({"Right"});
    ASSERT_TRUE(until([this] { return view()->cursor()->column == 2; }));
    EXPECT_EQ(gestures(), QStringList({"-Absence de la classe : pas de séance ici",
                                       "-Absence d’étudiants : pas de séance ici"}));
    hands.press({"Home"});
    ASSERT_TRUE(until([this] { return view()->cursor()->column == 0; }));
    EXPECT_EQ(gestures(), QStringList({"-Absence de la classe : choisissez une séance",
                                       "-Absence d’étudiants : choisissez une séance"}));
    EXPECT_EQ(recorded("abscence"), QStringList{"G1"});
}

TEST_P(TheAbsenceMenu, leavesAPlanAloneThatHasBeenDrawnAnewMeanwhile)
{
    begin();
    ASSERT_NE(menu(), nullptr);
    window().forward([this] { form().CbJour.setListIndex(1); });
    hands.press({"c"});
    ASSERT_TRUE(until([this] { return window().findChild<QMenu*>("PlanMenu") == nullptr; }));
    EXPECT_EQ(recorded("abscence"), QStringList{"G1"});
}

TEST_P(TheAbsenceMenu, marksAClassFromTheStartOfTheWindowWithoutAMouse)
{
    open();
    hands.press({"ctrl+d"});
    hands.type("31032025"); // a Monday
    ASSERT_TRUE(until([this] { return plan()["date"].toString() == "2025-03-31"; }));
    hands.press({"Escape", "Down", "Down", "Down", "Right"});
    ASSERT_TRUE(until([this] {
        const auto cell = view()->cursor();
        return cell && view()->table().nameOf(*cell).startsWith("B2, 10h15 à 11h45, G2, Petit");
    }));
    choose("c", {"G1", "G2"}, kNone);
    EXPECT_EQ(database.read("select Classe, Debut from abscence where Datex = '2025-03-31'"),
              (QList<QStringList>{{"G2", "10h15"}}));
    EXPECT_TRUE(until([this] {
        return view()->table().nameOf(*view()->cursor()) ==
               "B2, 10h15 à 11h45, G2, Petit, Physique, Dépassement 45/20, Classe absente";
    }));
}

TEMPORA_ON_BOTH_DATABASES(TheAbsenceMenu);

TEST_F(TheWindow, marksAbsencesByTheMenuThatTheMouseOpens)
{
    open();
    const auto cell = view()->table().cellOf("A2", 1);
    ASSERT_TRUE(cell);
    hands.rightClick(view()->onScreen(*cell).center());
    ASSERT_TRUE(until([this] {
        const auto* menu = window().findChild<QMenu*>("PlanMenu");
        return menu != nullptr && menu->isVisible();
    }));
    hands.press({"c"});
    EXPECT_TRUE(until([this] { return database.read("select Classe from abscence").empty(); }));
}
