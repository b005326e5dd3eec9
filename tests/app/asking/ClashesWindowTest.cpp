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
    EXPECT_EQ(rows("UseByRoom"), QStringList({"A1|30|0 sur 24|0 %|0 %", "A2|40|2 sur 24|8 %|1 %",
                                              "B1|100|2 sur 24|8 %|< 1 %", "B2|20|1 sur 24|4 %|0 %",
                                              "C1|12|1 sur 24|4 %|1 %"}));
    const auto* slots = control<QTableWidget>("UseBySlot");
    EXPECT_EQ(slots->item(0, 0)->text(), "40 %"); // Monday's first: two rooms of five
    EXPECT_EQ(slots->item(5, 3)->text(), "0 %");
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
