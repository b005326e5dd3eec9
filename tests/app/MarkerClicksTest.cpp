// The word that follows a gesture, in a user's window on Monday, 17 March 2025. Rows: A2 with G1,
// which was absent, B1 with G2 and G3, B2 with G2, C1 with G3.

#include "app/MarkerClicks.h"

#include "app/StatusNews.h"
#include "app/WindowDesk.h"
#include "support/XSession.h"

using namespace test;

namespace
{

class TheWordAfterAClick : public TheWindow
{
protected:
    void TearDown() override { byHand("keyup shift keyup ctrl"); }

    /// Plays xdotool commands over the box of that row.
    void over(std::size_t row, const QString& commands)
    {
        const QPoint point = view()->viewport()->mapToGlobal(
            view()->toViewport(overlays(row, 0).ZAbs.topLeft() + QPointF(12, 8)).toPoint());
        byHand(QString("mousemove %1 %2 ").arg(point.x()).arg(point.y()) + commands);
    }
    [[nodiscard]] QString said()
    {
        auto* news = dynamic_cast<app::StatusNews*>(control<QFrame>("StatusNews"));
        return news->isVisible() ? news->sentence() : QString();
    }
    void expectSaid(const QString& sentence)
    {
        static_cast<void>(until([&] { return said() == sentence; }));
        EXPECT_EQ(said(), sentence);
    }
};

const QString kShiftClick = QStringLiteral("keydown shift click 1 keyup shift");

} // namespace

TEST_F(TheWordAfterAClick, tellsWhatWasTakenBackAndRecordedAgain)
{
    open();
    over(0, kShiftClick);
    expectSaid("Absence de G1 retirée, lundi 17/03");
    over(0, kShiftClick);
    expectSaid("Absence de G1 enregistrée, lundi 17/03 (refaire le geste pour annuler)");
}

TEST_F(TheWordAfterAClick, countsTheClassesOfAGroup)
{
    open();
    over(1, kShiftClick);
    expectSaid("Absence de 2 classes enregistrée, lundi 17/03 (refaire le geste pour annuler)");
    over(1, "keydown ctrl click 1 keyup ctrl");
    expectSaid("Absence d’étudiants de 2 classes enregistrée, lundi 17/03 (refaire le geste pour "
               "annuler)");
}

TEST_F(TheWordAfterAClick, saysWhyAKeyThatIsHeldMarksNothing)
{
    open();
    over(2, "keydown shift click 1");
    expectSaid("Absence de G2 enregistrée, lundi 17/03 (refaire le geste pour annuler)");
    over(3, "click 1");
    expectSaid("Rien n’est enregistré : relâcher la touche, puis la tenir de nouveau pour chaque "
               "clic");
    EXPECT_EQ(database.read("select Classe from abscence where Classe='G3'").size(), 0);
}

TEST_F(TheWordAfterAClick, saysThatThereIsNothingToMark)
{
    open();
    over(0, "mousemove_relative -- 0 -60 sleep 0"); // away from what was there
    const QRectF box = overlays(2, 0).ZAbs;         // B2 is free before 10h15
    const QPoint free = view()->viewport()->mapToGlobal(
        view()->toViewport(QPointF(box.left() - 20, box.center().y())).toPoint());
    byHand(QString("mousemove %1 %2 ").arg(free.x()).arg(free.y()) + kShiftClick);
    expectSaid("Rien n’est enregistré : aucune séance à cet endroit");
}

TEST_F(TheWordAfterAClick, saysNothingOfAClickThatIsNotToMark)
{
    open();
    over(0, kShiftClick);
    expectSaid("Absence de G1 retirée, lundi 17/03");
    over(1, "click 1");
    QCoreApplication::processEvents();
    expectSaid("Absence de G1 retirée, lundi 17/03");
}
