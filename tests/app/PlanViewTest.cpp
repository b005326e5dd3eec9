// The plan under the mouse: what its tooltips tell.

#include "app/WindowDesk.h"
#include "paint/HourMarks.h"
#include "plan/RoomRows.h"

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
    EXPECT_EQ(toolTipsOfG1.ZAbs, "A2 – 8h30, 90 min\nG1\nDupont/Durand\n[Algèbre]\n"
                                 "Classe absente\nÉtudiants : G1 Absent\n\n" +
                                     gestures);
    EXPECT_EQ(toolTipsOfG1.XAbs, toolTipsOfG1.ZAbs);
    EXPECT_EQ(toolTipsOfG1.YAbs, toolTipsOfG1.ZAbs);
}

TEST_F(ThePlansToolTips, areTheSameWhereverInTheBoxTheMouseIs)
{
    database.execute("UPDATE salle SET places = 40 WHERE Nom = 'B1'"); // too few for G2 and G3
    open();
    const paint::OverlayPlaces places = overlays(1, 0); // B1 at 14h00
    const auto at = [this](QPointF planPoint) {
        return view()->toolTipAt(view()->toViewport(planPoint).toPoint());
    };
    const QString text = at(places.ZAbs.center());
    EXPECT_TRUE(text.startsWith("B1 – 14h00, 180 min")) << text.toStdString();
    EXPECT_TRUE(text.contains("Dépassement 2/40 : inscrits 2, prévus 55, places 40"))
        << text.toStdString();
    for (const QRectF& part : {places.XAbs, places.YAbs, places.Label2, places.Labelz}) {
        EXPECT_EQ(at(part.center()), text);
    }
}

TEST_F(ThePlansToolTips, tellHowLongAnEmptyPlaceIsFree)
{
    open();
    const auto at = [this](int row, double minute) {
        const form::Place& room = form().Salle.at(static_cast<std::size_t>(row)).place;
        const QPointF point(view()->target().onAxis(paint::positionOf(form(), minute)),
                            view()->target().toPixelsY(room.top + room.height / 2));
        return view()->toolTipAt(view()->toViewport(point).toPoint());
    };
    // A2 is taken from 8h30 to 10h00, the last slot ends at 17h15. On Monday, 17 March, it has a
    // make-up from 10h15 on, which nobody has asked about.
    EXPECT_EQ(at(1, 660),
              "A2, 40 places, libre de 10h00 à 17h15\nRattrapages et examens non compris");
    window().forward([this] {
        form().Check2.setChecked(true);
        form().Check3.setChecked(false); // draws the plan with the make-ups
    });
    EXPECT_EQ(at(1, 720), "A2, 40 places, libre de 11h45 à 17h15\nExamens non compris");
    EXPECT_EQ(at(1, 605), "A2, 40 places, libre de 10h00 à 10h15\nExamens non compris");
    window().forward([this] { form().XOpCl.setChecked(false); });
    window().forward([this] { form().XOpEns.setChecked(false); });
    window().forward([this] { form().XpMat.setChecked(false); });
    EXPECT_EQ(at(1, 540), "A2, 40 places"); // a box that shows nothing is not drawn
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
    EXPECT_TRUE(toolTipsOfBoth.ZAbs.contains("Étudiants : G2, G3 Absent"));
    EXPECT_EQ(toolTipsOfBoth.XAbs, toolTipsOfBoth.ZAbs);
    EXPECT_EQ(toolTipsOfBoth.YAbs, toolTipsOfBoth.ZAbs);
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

namespace
{

/// The window on today's plan: Wednesday, 19 March 2025.
class TheClock : public TheWindow
{
protected:
    void openToday(const QTime& time)
    {
        open();
        window().forward([this] { form().Today.press(); });
        ASSERT_EQ(form().DTPicker1.value(), QDate(2025, 3, 19));
        view()->setClock([this, time] { return QDateTime(m_today, time); });
    }
    /// Whether the red line crosses the gap below the first row at this minute of the day.
    [[nodiscard]] bool hasLineAt(double minute)
    {
        const form::Place& row = form().Salle[1].place;
        const QPointF point(view()->target().onAxis(paint::positionOf(form(), minute)),
                            view()->target().toPixelsY(row.top + row.height + plan::kRowGap / 2));
        const QImage image = view()->viewport()->grab().toImage();
        const double ratio = image.devicePixelRatio();
        const QColor color = image.pixelColor((view()->toViewport(point) * ratio).toPoint());
        return color.red() > 180 && color.green() < 60 && color.blue() < 80;
    }

    QDate m_today{2025, 3, 19};
};

} // namespace

TEST_F(TheClock, hasItsLineOnTodaysPlanAlone)
{
    openToday(QTime(12, 0));
    EXPECT_TRUE(hasLineAt(720));
    EXPECT_FALSE(hasLineAt(760));
    window().forward([this] { form().DayAfter.press(); });
    EXPECT_FALSE(hasLineAt(720));
    window().forward([this] { form().DayBefore.press(); });
    EXPECT_TRUE(hasLineAt(720));
    m_today = m_today.addDays(1);
    EXPECT_FALSE(hasLineAt(720));
}

TEST_F(TheWindow, lightsTheRowAndTheHourUnderTheMouse)
{
    open();
    const auto pictureAt = [this](QPoint point) {
        hands.moveTo(view()->viewport()->mapToGlobal(point));
        return view()->viewport()->grab().toImage();
    };
    const form::Place& row = form().Salle[2].place;
    const QPoint name = QPointF(3, view()->target().toPixelsY(row.top + row.height / 2)).toPoint();
    const QPoint place(
        static_cast<int>(view()->target().onAxis(paint::positionOf(form(), 630))), // 10h30
        name.y());
    const QPoint hour(static_cast<int>(view()->target().onAxis(paint::positionOf(form(), 650))), 2);
    const QColor dark = view()->viewport()->grab().toImage().pixelColor(name);
    const QColor darkHour = view()->viewport()->grab().toImage().pixelColor(hour);
    EXPECT_TRUE(test::until([&] { return pictureAt(place).pixelColor(name) != dark; }));
    EXPECT_NE(pictureAt(place).pixelColor(hour), darkHour);
    const QPoint below(place.x(), view()->viewport()->height() - 3);
    EXPECT_TRUE(test::until([&] { return pictureAt(below).pixelColor(name) == dark; }));
}
