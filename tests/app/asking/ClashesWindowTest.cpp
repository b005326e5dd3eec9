// "Conflits" and "Occupation" in a user's hands.

#include "app/asking/ClashesWindow.h"
#include "app/asking/RoomUseWindow.h"

#include "app/asking/AskingDesk.h"

#include <QTableWidget>
#include <QToolButton>

using namespace test;

namespace
{

class TheClashes : public TheAnswers
{
protected:
    /// Opens the menu with the mouse and presses the key of a question.
    template <typename Window>
    [[nodiscard]] Window* chosen(const char* key, const char* name)
    {
        hands.click(control<QToolButton>("Questions")); // the menu runs an event loop of its own
        return ask<Window>({key}, name);
    }
};

} // namespace

TEST_F(TheClashes, areNoneInATimetableWithoutAny)
{
    open();
    const auto* answers = chosen<app::ClashesWindow>("c", "ClashesWindow");
    EXPECT_TRUE(until([&] { return status(*answers).startsWith("Aucun conflit"); }))
        << status(*answers).toStdString();
    EXPECT_EQ(rows("Clashes"), QStringList());
}

TEST_F(TheClashes, leadToTheBox)
{
    database.execute("insert into emplois (Tranche, Seance, Salle, Classe, Enseignant1, newnature, "
                     "Debut) values (1, 'Mardi2', 'A2', 'G2', 'Petit', '00', '10h15')");
    open();
    const auto* answers = chosen<app::ClashesWindow>("c", "ClashesWindow");
    ASSERT_TRUE(until([&] { return status(*answers).startsWith("1 conflit"); }));
    ASSERT_EQ(rows("Clashes").size(), 1);
    EXPECT_TRUE(rows("Clashes").front().startsWith("Salle en double|mardi 10h15–11h45|Salle A2, "))
        << rows("Clashes").front().toStdString();
    EXPECT_EQ(control<QComboBox>("ClashKind")->itemText(1), "Salle en double (1)");
    hands.press({"alt+v"});
    ASSERT_TRUE(until([&] { return day() == "Mardi" && !view()->framed().isEmpty(); }));
    EXPECT_EQ(view()->framedRoom(), "A2");
}

TEST_F(TheClashes, areNotKnownWithoutTheStudents)
{
    open();
    database.execute("drop table etudiant");
    const auto* answers = chosen<app::ClashesWindow>("c", "ClashesWindow");
    EXPECT_TRUE(until([&] {
        return status(*answers).contains("on ne sait pas s’il y a des conflits");
    })) << status(*answers).toStdString();
}

TEST_F(TheClashes, standBesideTheUseOfRooms)
{
    open();
    const auto* answers = chosen<app::RoomUseWindow>("o", "RoomUseWindow");
    ASSERT_TRUE(hands.choose(control<QComboBox>("UseWeek"), 1));
    // In week A six of 120 slots are held: A2 two, B1 two, B2 one, C1 one.
    ASSERT_TRUE(until([&] { return status(*answers).startsWith("5 % des créneaux tenus"); }))
        << status(*answers).toStdString();
    // Seats: A2 5 of 24 times 40, B1 4 of 2400, C1 2 of 288.
    EXPECT_EQ(rows("Use_salle"), QStringList({"A1|1|30|0|24|0 %|0 %", "A2|1|40|2|24|8 %|1 %",
                                              "B1|2|100|2|24|8 %|< 1 %", "B2|2|20|1|24|4 %|0 %",
                                              "C1|3|12|1|24|4 %|1 %"}));
    // Zone 1: two of 48 slots, five of 24 times 70 seats.
    EXPECT_EQ(rows("Use_zone").front(), "1|2|70|2|48|4 %|< 1 %");
    const auto* grid = control<QTableWidget>("UseBySlot");
    EXPECT_EQ(grid->verticalHeaderItem(0)->text(), "1 : 8h30–10h00");
    EXPECT_EQ(grid->item(0, 0)->text(), "40 %"); // Monday's first: two rooms of five
    EXPECT_EQ(grid->item(3, 5)->text(), "0 %");  // Saturday's last
    EXPECT_TRUE(control<QLabel>("UseNotes")->text().contains("ni rattrapages, ni examens"));
}

TEST_F(TheClashes, leaveTheWeekOfTheDateInTheStatusBar)
{
    setup.set("SemaineA", "2025-03-10"); // so the week of 17 March is a week B
    open();
    EXPECT_EQ(control<QLabel>("WeekShown")->text(), "Semaine B (du 17/03)");
}

TEST_F(TheClashes, sayNothingOfTheWeekWhereNobodyKnows)
{
    open();
    EXPECT_EQ(control<QLabel>("WeekShown")->text(), "");
}
