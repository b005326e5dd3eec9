// The keyboard in the plan, on the tiny faculty's Monday, 17 March 2025. Rows: A2, B1, B2, C1;
// columns: the rooms, then 8h30, 10h15, 14h00 and 15h45.

#include "app/PlanKeys.h"

#include "app/WindowDesk.h"

#include <QAccessible>
#include <QMenu>
#include <QScrollBar>

using namespace test;

namespace
{

class ThePlansKeys : public TheWindow
{
protected:
    void begin(QSize size = {1366, 740})
    {
        open(size);
        view()->setFocus();
        ASSERT_TRUE(until([this] { return view()->hasFocus(); }));
    }
    /// The cell that the keyboard is on, in words; "-" for none.
    [[nodiscard]] QString cursor()
    {
        const auto cell = view()->cursor();
        return cell ? view()->table().nameOf(*cell) : QString("-");
    }
    void expectCursor(const QString& beginning)
    {
        static_cast<void>(until([&] { return cursor().startsWith(beginning); }));
        EXPECT_TRUE(cursor().startsWith(beginning)) << cursor().toStdString();
    }
    /// The text that is open over the plan; empty without one.
    [[nodiscard]] QString note()
    {
        const auto* words = window().findChild<QLabel*>("CellText");
        return words != nullptr && words->isVisible() ? words->text() : QString();
    }

    const QString seanceOfA2 = "A2, 8h30 à 10h00, G1, Dupont/Durand, Algèbre, Classe absente";
};

} // namespace

TEST_F(ThePlansKeys, bringTheCursorAndMoveIt)
{
    begin();
    EXPECT_EQ(cursor(), "-");
    hands.press({"Down"}); // brings it
    expectCursor(seanceOfA2);
    hands.press({"Right"});
    expectCursor("A2, 10h15 à 11h45, pas de case");
    hands.press({"Right", "Down"});
    expectCursor("B1, 14h00 à 17h00, G2, Martin, Analyse");
    hands.press({"End"});
    expectCursor("B1, 14h00 à 17h00, G2"); // the row's last cell
    hands.press({"Home"});
    expectCursor("B1, 100 places");
    hands.press({"ctrl+End"});
    expectCursor("C1, 15h45 à 17h15");
    hands.press({"ctrl+Home"});
    expectCursor("A2, 40 places");
    hands.press({"Page_Down"});
    expectCursor("C1, 12 places");
    hands.press({"Page_Up"});
    expectCursor("A2, 40 places");
}

TEST_F(ThePlansKeys, putTheCursorAwayWithEscapeAndBringItBackThere)
{
    begin();
    hands.press({"Down", "Down", "Right"});
    expectCursor("B1, 10h15");
    hands.press({"Escape"});
    expectCursor("-");
    hands.press({"Up"});
    expectCursor("B1, 10h15");
}

TEST_F(ThePlansKeys, leadToPagesOnlyWhileTheCursorIsAway)
{
    setup.set("Total_L_P", "2");
    begin();
    hands.press({"End"});
    expectRooms({"C1"});
    hands.press({"Home"});
    expectRooms({"A2", "B1"});
    hands.press({"Down", "End"});
    expectCursor("A2, 15h45");
    const std::uint64_t before = redraws();
    hands.press({"Escape", "End"}); // the page again
    expectRooms({"C1"});
    EXPECT_EQ(redraws(), before + 1);
}

TEST_F(ThePlansKeys, keepTheCursorOnItsRoomAndSlotWhenAnotherDayIsShown)
{
    begin();
    hands.press({"Down", "Right"});
    expectCursor("A2, 10h15 à 11h45, pas de case");
    hands.press({"alt+Right"});
    expectCursor("A2, 10h15 à 11h45, G3, Roux, Chimie");
    ASSERT_TRUE(hands.choose(control<QComboBox>("cb_Locaux"), 2)); // no A2 there
    expectCursor("-");
    expectRooms({"B2"});
}

TEST_F(ThePlansKeys, bringTheCursorToWhatWasLookedFor)
{
    begin();
    view()->frame("B2", 2);
    hands.press({"Right"});
    expectCursor("B2, 10h15 à 11h45, G2, Petit");
    hands.press({"Escape"});
    expectCursor("-");
    EXPECT_EQ(view()->framedRoom(), "B2");
    hands.press({"Escape"});
    EXPECT_TRUE(until([this] { return view()->framedRoom().isEmpty(); }));
}

TEST_F(ThePlansKeys, goOnWhereTheMouseWas)
{
    begin();
    hands.press({"Down"});
    expectCursor("A2, 8h30");
    const auto cell = view()->table().cellOf("B2", 2);
    ASSERT_TRUE(cell);
    hands.click(view()->onScreen(*cell).center());
    expectCursor("-");
    hands.press({"Down"});
    expectCursor("B2, 10h15");
}

TEST_F(ThePlansKeys, scrollTheCursorsCellIntoView)
{
    setup.set("Toutes_Salles", "True");
    begin({900, 420});
    QScrollBar* down = view()->verticalScrollBar();
    down->setValue(0);
    hands.press({"Down", "ctrl+End"});
    expectCursor("C1, 15h45");
    const auto cell = view()->cursor();
    ASSERT_TRUE(cell);
    EXPECT_TRUE(view()->isInSight(*cell));
    hands.press({"ctrl+Home"});
    expectCursor("A1, 30 places");
    EXPECT_TRUE(view()->isInSight(*view()->cursor()));
}

TEST_F(ThePlansKeys, drawARingAroundTheCell)
{
    begin();
    hands.press({"Down", "Right"}); // a place without a box
    expectCursor("A2, 10h15");
    const QRect place = view()->onScreen(*view()->cursor());
    const QPoint left = view()->mapFromGlobal(QPoint(place.left() - 2, place.center().y()));
    const auto isRing = [&] {
        const QColor color = view()->grab().toImage().pixelColor(left);
        return color == QColor(16, 42, 110);
    };
    EXPECT_TRUE(until(isRing));
    hands.press({"Escape"});
    EXPECT_TRUE(until([&] { return !isRing(); }));
}

TEST_F(ThePlansKeys, openTheTextOfABox)
{
    begin();
    hands.press({"Down", "Return"});
    ASSERT_TRUE(until([this] { return !note().isEmpty(); }));
    const auto cell = view()->cursor();
    ASSERT_TRUE(cell);
    const QRect place = view()->onScreen(*cell);
    const QPoint inBox(place.left() + place.width() / 4, place.center().y());
    EXPECT_EQ(note(), view()->toolTipAt(view()->viewport()->mapFromGlobal(inBox)));
    EXPECT_TRUE(note().startsWith("A2 – 8h30, 90 min\nG1\nDupont/Durand\n[Algèbre]"))
        << note().toStdString();
    auto* words = control<QLabel>("CellText"); // a screen reader reads what has the focus
    EXPECT_TRUE(until([&] { return words->hasFocus(); }));
    const QAccessibleInterface* read = QAccessible::queryAccessibleInterface(words);
    EXPECT_EQ(read->text(QAccessible::Name), note());
    EXPECT_TRUE(read->state().focused);
    hands.press({"Escape"});
    EXPECT_TRUE(until([this] { return note().isEmpty(); }));
    expectCursor(seanceOfA2); // the first Escape was the text's
    EXPECT_TRUE(until([this] { return view()->hasFocus(); }));
}

TEST_F(ThePlansKeys, openTheClassesBehindACounter)
{
    begin();
    hands.press({"Down", "Down", "Right", "Right", "Return"});
    ASSERT_TRUE(until([this] { return !note().isEmpty(); }));
    EXPECT_TRUE(note().startsWith("B1 – 14h00, 180 min\nG2\nMartin")) << note().toStdString();
    EXPECT_TRUE(note().endsWith("\n\nG2 – Martin\nG3 – Martin")) << note().toStdString();
    hands.press({"Return"});
    EXPECT_TRUE(until([this] { return note().isEmpty(); }));
    window().forward([this] { form().Check3.setChecked(false); }); // no counters
    hands.press({"Return"});
    ASSERT_TRUE(until([this] { return !note().isEmpty(); }));
    EXPECT_FALSE(note().contains("G3 – Martin"));
}

TEST_F(ThePlansKeys, openTheWordsOfAnEmptyPlaceAndNothingWithoutACursor)
{
    begin();
    hands.press({"Return", "Down", "Right", "Return"});
    ASSERT_TRUE(until([this] { return !note().isEmpty(); }));
    EXPECT_EQ(note(), "A2, 40 places, libre de 10h00 à 17h15\nRattrapages et examens non compris");
    hands.press({"Escape"});
    ASSERT_TRUE(until([this] { return note().isEmpty() && view()->hasFocus(); }));
    hands.press({"Home", "Return"});
    EXPECT_TRUE(until([this] { return note() == "A2, 40 places"; }));
}

TEST_F(ThePlansKeys, openTheMenuOfTheCell)
{
    begin();
    hands.press({"Down", "Right", "shift+F10"});
    const QMenu* menu = nullptr;
    ASSERT_TRUE(until([&] {
        menu = window().findChild<QMenu*>("PlanMenu");
        return menu != nullptr && menu->isVisible();
    }));
    EXPECT_EQ(menu->actions().front()->text(), "Salle &libre, lundi 10h15–11h45…");
    EXPECT_EQ(menu->actions().at(1)->text(), "Semaine de la salle A2");
    hands.press({"Escape"});
    EXPECT_TRUE(until([this] { return window().findChild<QMenu*>("PlanMenu") == nullptr; }));
    hands.press({"Menu"});
    EXPECT_TRUE(until([this] { return window().findChild<QMenu*>("PlanMenu") != nullptr; }));
    hands.press({"Escape"});
    EXPECT_TRUE(until([this] { return window().findChild<QMenu*>("PlanMenu") == nullptr; }));
    expectCursor("A2, 10h15");
}
