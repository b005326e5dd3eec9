// What stands in the middle of an empty plan.

#include "app/EmptyPlanNote.h"

#include "app/WindowDesk.h"

using namespace test;

namespace
{

class TheEmptyPlanNote : public TheWindow
{
protected:
    [[nodiscard]] QLabel* note() { return control<QLabel>("EmptyPlanNote"); }
    void expectNote(const QString& reason)
    {
        const auto shown = [this] { return note()->isVisible() ? note()->text() : QString(); };
        static_cast<void>(until([&] { return shown() == reason; }));
        EXPECT_EQ(shown(), reason);
    }
};

} // namespace

TEST_F(TheEmptyPlanNote, isHiddenWhereThereIsABox)
{
    open();
    EXPECT_FALSE(note()->isVisible());
}

TEST_F(TheEmptyPlanNote, saysThatAZoneHasNoRoom)
{
    open();
    ASSERT_TRUE(hands.choose(control<QComboBox>("cb_Locaux"), 7));
    expectNote("Aucune salle dans la zone 7.");
    EXPECT_EQ(note()->textFormat(), Qt::PlainText);
    EXPECT_TRUE(view()->table().note().startsWith("Aucune salle dans la zone 7."));
    ASSERT_TRUE(hands.choose(control<QComboBox>("cb_Locaux"), 0));
    expectNote({});
}

TEST_F(TheEmptyPlanNote, standsInTheMiddleOfThePlanAtEverySize)
{
    open();
    ASSERT_TRUE(hands.choose(control<QComboBox>("CbJour"), 2));
    expectNote("Aucune séance dans ces salles le mercredi.");
    for (const QSize size : {QSize(1366, 740), QSize(900, 600)}) {
        window().resize(size);
        ASSERT_TRUE(until([&] { return window().size() == size; }));
        const QPoint middle = view()->viewport()->rect().center();
        EXPECT_TRUE(
            until([&] { return (note()->geometry().center() - middle).manhattanLength() <= 2; }));
        EXPECT_TRUE(view()->viewport()->rect().contains(note()->geometry()));
    }
}

TEST_F(TheEmptyPlanNote, letsTheMousePass)
{
    open();
    ASSERT_TRUE(hands.choose(control<QComboBox>("CbJour"), 2));
    expectNote("Aucune séance dans ces salles le mercredi.");
    EXPECT_TRUE(note()->testAttribute(Qt::WA_TransparentForMouseEvents));
}
