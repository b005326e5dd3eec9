// The plan under the mouse: what its tooltips tell.

#include "app/WindowDesk.h"

using namespace test;

namespace
{

class ThePlansToolTips : public TheWindow
{
protected:
    /// The tooltips of a box at the places of its three images. `row` and `box` count from 0.
    struct ToolTips {
        QString XAbs;
        QString YAbs;
        QString ZAbs;
    };
    [[nodiscard]] ToolTips toolTips(std::size_t row, std::size_t box)
    {
        const paint::OverlayPlaces places = overlays(row, box);
        const auto at = [this](QPointF planPoint) {
            return view()->toolTipAt(view()->toViewport(planPoint).toPoint());
        };
        // The two pictures overlap: the left one is surely hit near its left edge.
        return {at({places.XAbs.left() + 3, places.XAbs.center().y()}), at(places.YAbs.center()),
                at({places.ZAbs.left() + places.ZAbs.width() / 4, places.ZAbs.center().y()})};
    }
};

} // namespace

TEST_F(ThePlansToolTips, tellWhatIsRecordedAndWhatAClickDoes)
{
    database.execute("INSERT INTO etud_abs (Classe, Nom, Jour, HeureD) "
                     "VALUES ('G1', 'G1', '2025-03-17', '8h30')");
    open();
    const ToolTips toolTipsOfG1 = toolTips(0, 0); // A2 at 8h30
    const QString gestures =
        "Maj + clic : retirer l’absence de la classe G1 le lundi 17/03/2025\n"
        "Ctrl + clic : retirer l’absence d’étudiants de la classe G1 le lundi 17/03/2025";
    EXPECT_EQ(toolTipsOfG1.XAbs, "Classe absente\n" + gestures);
    EXPECT_EQ(toolTipsOfG1.YAbs, "G1 Absent");
    EXPECT_EQ(toolTipsOfG1.ZAbs, "A2 – 8h30, 90 min\nG1\nDupont/Durand\n[Algèbre]\n"
                                 "Classe absente\nÉtudiants absents\n\n" +
                                     gestures);
}

TEST_F(ThePlansToolTips, areEmptyAtTheTriangleWithoutAbsentStudents)
{
    open();
    const ToolTips toolTipsOfG1 = toolTips(0, 0);
    EXPECT_EQ(toolTipsOfG1.YAbs, "");
    EXPECT_EQ(
        toolTipsOfG1.XAbs,
        "Classe absente\n"
        "Maj + clic : retirer l’absence de la classe G1 le lundi 17/03/2025\n"
        "Ctrl + clic : enregistrer l’absence d’étudiants de la classe G1 le lundi 17/03/2025");
}

TEST_F(ThePlansToolTips, leaveTheOutcomeOpenForSeveralClasses)
{
    database.execute("INSERT INTO etud_abs (Classe, Nom, Jour, HeureD) "
                     "VALUES ('G2', 'G2', '2025-03-17', '14h00')");
    open();
    const ToolTips toolTipsOfBoth = toolTips(1, 0); // B1 at 14h00
    const QString gestures = "Maj + clic : enregistrer ou retirer l’absence de chacune des classes "
                             "G2, G3 le lundi 17/03/2025\n"
                             "Ctrl + clic : enregistrer ou retirer l’absence d’étudiants de "
                             "chacune des classes G2, G3 le lundi 17/03/2025";
    EXPECT_EQ(toolTipsOfBoth.XAbs, gestures);
    EXPECT_EQ(toolTipsOfBoth.YAbs, "G2\tG3 Absent");
    EXPECT_TRUE(toolTipsOfBoth.ZAbs.endsWith("\n\n" + gestures))
        << toolTipsOfBoth.ZAbs.toStdString();
}

TEST_F(ThePlansToolTips, nameTheDateThatAClickMarksNotTheShownDay)
{
    open();
    window().forward([this] {
        form().CbJour.setListIndex(1);
        form().OpExam().select();
        form().OpEns().select(); // the picker goes back to Monday, the list of days does not
    });
    ASSERT_EQ(form().CbJour.text(), "Mardi");
    ASSERT_EQ(form().DTPicker1.value(), QDate(2025, 3, 17));
    EXPECT_TRUE(toolTips(0, 0).ZAbs.endsWith(" le lundi 17/03/2025"))
        << toolTips(0, 0).ZAbs.toStdString();
    EXPECT_EQ(control<QLabel>("MarkedDay")->text(), "Absences du lundi 17/03/2025");
}

TEST_F(ThePlansToolTips, tellTheRoomOfARow)
{
    open();
    const auto at = [this](std::size_t row) {
        const form::Place& place = form().Salle.at(row).place;
        return view()->toolTipAt(
            view()
                ->toViewport({view()->target().toPixelsX(place.width / 2),
                              view()->target().toPixelsY(place.top + place.height / 2)})
                .toPoint());
    };
    EXPECT_EQ(at(1), "A2");
    EXPECT_EQ(at(4), "C1");
    EXPECT_EQ(at(0), "A1\nSalle placée juste avant la première ligne du plan : ses séances ne sont "
                     "pas dessinées ici.\nUn clic montre sa journée.");
    EXPECT_EQ(at(5), ""); // no such room
}

TEST_F(ThePlansToolTips, sayThatTheTotalsWereCountedBeforeTheLastChoice)
{
    open();
    window().forward([this] {
        form().Chk_Compt.setChecked(true);
        form().CbJour.setListIndex(0);
    });
    const auto overTheFirstTotal = [this] {
        const form::Place& place = form().Tot[0].place;
        const double x = view()->target().toPixelsX(place.left + place.width / 2.0);
        const int bottom = view()->viewport()->height();
        return QPoint(static_cast<int>(view()->toViewport({x, 0}).x()), bottom - 8);
    };
    EXPECT_EQ(view()->toolTipAt(overTheFirstTotal()), "");
    // All rooms stand on the one page: stepping on stops the counting, and an option redraws.
    window().forward([this] {
        form().Command3.click.raise();
        form().Check3.setChecked(false);
    });
    EXPECT_EQ(view()->toolTipAt(overTheFirstTotal()),
              "Places occupées, comptées avant le dernier choix.\n"
              "Choisir le jour les compte à nouveau.");
    window().forward([this] { form().CbJour.setListIndex(0); });
    EXPECT_EQ(view()->toolTipAt(overTheFirstTotal()), "");
}
