#include "plan/PlanDesk.h"
#include "support/RuntimeMatchers.h"

using test::PlanDesk;

namespace
{

/// Events that come in while a refresh yields. 35 rooms of 30 places on pages of 10 lines, all of
/// them held in the first slot; counting on.
class AnEventDuringARefresh : public testing::Test
{
protected:
    AnEventDuringARefresh()
    {
        for (int room = 0; room < 35; ++room) {
            desk.meeting(room, 1);
        }
        form.Chk_Compt.setChecked(true);
    }

    /// The plan shows exactly these rooms, each with its one box.
    void expectRooms(int first, int last, const QString& total)
    {
        QStringList rooms;
        std::vector<int> markers;
        for (int room = first; room <= last; ++room) {
            rooms.append(QString("R%1").arg(room, 2, 10, QChar('0')));
            markers.push_back(room - first + 1);
        }
        EXPECT_EQ(desk.drawnRooms(), rooms);
        EXPECT_EQ(desk.markers(), markers);
        EXPECT_EQ(desk.engine.markers().MarkerCount(), static_cast<int>(markers.size()));
        EXPECT_EQ(desk.totalsLine(), total.isEmpty() ? QStringList() : QStringList(total));
    }

    PlanDesk desk{35};
    form::PlanForm& form = desk.form;
};

} // namespace

TEST_F(AnEventDuringARefresh, startsAnotherOneThatReplacesIt)
{
    desk.duringRow(4, [this] { form.Colorer.setChecked(false); });
    desk.draw();
    expectRooms(1, 10, "300");
    EXPECT_EQ(desk.yields, 4 + 10); // the first one ends where it stands
    for (const plan::PlanRow& row : desk.drawn()) {
        EXPECT_EQ(row.color, form::Colour::fromRgb(215, 215, 215));
    }
}

TEST_F(AnEventDuringARefresh, mayComeInTheReplacingOneAsWell)
{
    desk.duringRow(4, [this] {
        desk.duringRow(7, [this] { form.Colorer.setChecked(true); });
        form.Colorer.setChecked(false);
    });
    desk.draw();
    expectRooms(1, 10, "300");
    EXPECT_EQ(desk.yields, 4 + 7 + 10);
}

TEST_F(AnEventDuringARefresh, mayComeAfterItsLastRow)
{
    desk.duringRow(10, [this] { form.ChkGrille.setChecked(true); });
    desk.draw();
    expectRooms(1, 10, "300");
}

TEST_F(AnEventDuringARefresh, countsThePageThatItLeavesForTheNext)
{
    desk.duringRow(3, [this] { form.Command3.press(); });
    desk.draw();
    EXPECT_EQ(desk.page.PageOffset, 10);
    expectRooms(12, 21, "600");
    EXPECT_TRUE(form.Command2.enabled);
    EXPECT_TRUE(form.Command3.enabled);
}

TEST_F(AnEventDuringARefresh, mayPageToTheEnd)
{
    std::function<void()> next = [&] {
        desk.duringRow(1, next);
        form.Command3.press();
    };
    desk.duringRow(1, next);
    desk.draw();
    EXPECT_EQ(desk.page.PageOffset, 32);
    expectRooms(34, 34, "930");
    EXPECT_FALSE(desk.totals.CountingOn);
    EXPECT_FALSE(form.Command3.enabled);
}

TEST_F(AnEventDuringARefresh, leavesTheLastPageFullyCountedWhenItAsksForAnother)
{
    PlanDesk two(20);
    for (int room = 0; room < 20; ++room) {
        two.meeting(room, 1);
    }
    two.form.Chk_Compt.setChecked(true);
    two.draw();
    two.duringRow(3, [&two] { two.form.Command3.press(); }); // still enabled
    two.form.Command3.press();
    EXPECT_EQ(two.drawnRooms().size(), 8); // R12 to R19
    EXPECT_EQ(two.totalsLine(), QStringList("540"));
    EXPECT_FALSE(two.totals.CountingOn);
}

TEST_F(AnEventDuringARefresh, goesBackAPage)
{
    desk.draw();
    desk.duringRow(3, [this] { form.Command2.press(); });
    form.Command3.press();
    expectRooms(1, 10, "300");
    EXPECT_FALSE(form.Command2.enabled);
    EXPECT_TRUE(form.Command3.enabled);
}

TEST_F(AnEventDuringARefresh, goesForthToTheLastPage)
{
    desk.draw();
    for (int page = 0; page < 3; ++page) {
        form.Command3.press();
    }
    desk.duringRow(3, [this] { form.Command3.press(); });
    form.Command2.press();
    expectRooms(34, 34, "930"); // counted before, and left standing
    EXPECT_TRUE(desk.totals.isOld);
    EXPECT_TRUE(form.Command2.enabled);
    EXPECT_FALSE(form.Command3.enabled);
}

TEST_F(AnEventDuringARefresh, startsToCountWithTheNextOne)
{
    form.Chk_Compt.setChecked(false);
    desk.duringRow(3, [this] { form.Chk_Compt.setChecked(true); });
    desk.draw();
    expectRooms(1, 10, "");
    desk.draw();
    expectRooms(1, 10, "300");
}

TEST_F(AnEventDuringARefresh, stopsCountingWithTheNextOne)
{
    desk.duringRow(3, [this] { form.Chk_Compt.setChecked(false); });
    desk.draw();
    expectRooms(1, 10, "300");
    desk.draw();
    expectRooms(1, 10, "300");
    EXPECT_TRUE(desk.totals.isOld);
}

TEST_F(AnEventDuringARefresh, choosesADateDuringTheRedrawOfADay)
{
    form.Check2.setChecked(true);
    desk.duringRow(3, [this] { form.DTPicker1.setValue(QDate(2026, 10, 19)); });
    form.CbJour.setListIndex(1); // a Tuesday without any course
    EXPECT_EQ(form.CbJour.text(), "Lundi");
    EXPECT_EQ(desk.state.period.CurrentDate, QDate(2026, 10, 19));
    expectRooms(1, 10, "300");
    EXPECT_EQ(desk.marker(1).Jour, QDate(2026, 10, 19));
}

TEST_F(AnEventDuringARefresh, choosesADayDuringTheRedrawOfADate)
{
    form.Check2.setChecked(true);
    desk.duringRow(3, [this] { form.CbJour.setListIndex(0); });
    form.DTPicker1.setValue(QDate(2026, 10, 20));
    EXPECT_EQ(form.DTPicker1.value(), QDate(2026, 10, 19));
    expectRooms(1, 10, "300");
    EXPECT_EQ(desk.marker(10).Jour, QDate(2026, 10, 19));
}

TEST_F(AnEventDuringARefresh, changesTheLinesPerPage)
{
    desk.duringRow(3, [this] { form.Total_L_P.setText("5"); });
    desk.draw();
    EXPECT_EQ(desk.page.RowsShown, 5);
    expectRooms(1, 5, "150");
}

TEST_F(AnEventDuringARefresh, typesTheNextDigitOfTheLinesPerPage)
{
    desk.draw();
    desk.duringRow(1, [this] { form.Total_L_P.setText("29"); });
    form.Total_L_P.setText("2");
    EXPECT_EQ(desk.page.PageOffset, 0);
    EXPECT_EQ(desk.page.PageStart, 0);
    // The step to the last page stopped the counting behind R01, R02 and R31 to R34.
    expectRooms(1, 29, "180");
    EXPECT_TRUE(desk.totals.isOld);
    EXPECT_FALSE(form.Command2.enabled);
    EXPECT_TRUE(form.Command3.enabled);
}

TEST_F(AnEventDuringARefresh, changesTheRooms)
{
    desk.duringRow(3, [this] { form.cb_Locaux.setListIndex(1); });
    desk.draw();
    expectRooms(1, 10, "300");
    form.cb_Locaux.setListIndex(2); // a zone without rooms
    EXPECT_TRUE(desk.drawn().empty());
}

TEST_F(AnEventDuringARefresh, endsItWhenTheWindowCloses)
{
    desk.duringRow(3, [this] {
        desk.engine.abandonRefresh();
        desk.engine.closeDatabase();
    });
    desk.draw();
    EXPECT_EQ(desk.yields, 3);
    EXPECT_EQ(desk.drawn().size(), 3U);
}

TEST_F(AnEventDuringARefresh, switchesPaleColoursForAllRows)
{
    desk.duringRow(3, [this] {
        desk.colors.PaleColors = true;
        desk.colors.RedrawMode = false;
        desk.draw();
    });
    desk.draw();
    expectRooms(1, 10, "300");
    EXPECT_TRUE(desk.colors.RedrawMode);
    for (const plan::PlanRow& row : desk.drawn()) {
        EXPECT_GE(row.color.red(), 175);
    }
}
