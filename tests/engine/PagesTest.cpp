// Pages as values: the window shows what it showed.

#include "EngineDesk.h"

using namespace test;

namespace
{

class ThePages : public testing::Test
{
protected:
    ThePages() { createTinyFaculty(m_database); }

    EngineDesk& desk()
    {
        if (!m_desk) {
            m_desk = std::make_unique<EngineDesk>(m_database);
        }
        return *m_desk;
    }
    [[nodiscard]] static QStringList roomsOf(const plan::PlanPage& page)
    {
        QStringList rooms;
        for (const plan::PlanRow& row : page.content.rows) {
            rooms << row.room;
        }
        return rooms;
    }

private:
    TestDatabase m_database{DatabaseKind::Sqlite};
    std::unique_ptr<EngineDesk> m_desk;
};

} // namespace

TEST_F(ThePages, areThoseThatThePageButtonsShow)
{
    desk().form.Total_L_P.setText("2"); // A1 to B1, then B2's page from the room behind it on
    const std::vector<plan::PlanPage> pages = desk().engine.allPages();
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(roomsOf(pages[0]), QStringList({"A2", "B1"}));
    EXPECT_EQ(pages[0].state.form.Salle[0].caption, "A1");
    EXPECT_EQ(pages[0].number, 1);
    EXPECT_EQ(pages[1].number, 2);
    EXPECT_EQ(pages[1].count, 2);
    EXPECT_EQ(roomsOf(pages[1]), QStringList({"C1"}));
}

TEST_F(ThePages, startWithTheFirstOneWhateverIsShown)
{
    desk().form.Total_L_P.setText("2");
    desk().form.Command3.press();
    const QStringList drawn = desk().drawn();
    const std::uint64_t refreshes = desk().engine.refreshCount();
    EXPECT_EQ(roomsOf(desk().engine.allPages().front()), QStringList({"A2", "B1"}));
    EXPECT_EQ(desk().drawn(), drawn);
    EXPECT_EQ(desk().engine.refreshCount(), refreshes);
    EXPECT_EQ(desk().engine.state().page.PageStart, 2);
}

TEST_F(ThePages, areOneEvenWithoutRooms)
{
    desk().form.cb_Locaux.setListIndex(9);
    const std::vector<plan::PlanPage> pages = desk().engine.allPages();
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_TRUE(pages[0].content.rows.empty());
    EXPECT_EQ(pages[0].count, 1);
}

TEST_F(ThePages, lookUpTheShownOneAnewWithTheWindowsColours)
{
    desk().form.Colorer.setChecked(true);
    desk().form.Salle[1].backColor = form::Colour::fromRgb(1, 2, 3);
    desk().form.Check2.setChecked(true); // which draws nothing by itself
    EXPECT_EQ(desk().drawn().first(), "A2:1");
    const plan::PlanPage page = desk().engine.shownPage();
    ASSERT_EQ(page.content.rows[0].boxes.size(), 2U); // with the make-up of that Monday
    EXPECT_EQ(page.content.rows[0].color, form::Colour::fromRgb(1, 2, 3));
    EXPECT_EQ(page.state.form.Salle[1].backColor, form::Colour::fromRgb(1, 2, 3));
    EXPECT_EQ(page.state.form.Cap[1].backColor, form::Colour::fromRgb(1, 2, 3));
    EXPECT_EQ(page.number, 0);
    EXPECT_EQ(desk().drawn().first(), "A2:1");
}

TEST_F(ThePages, keepTheWindowsTotals)
{
    desk().form.Chk_Compt.setChecked(true);
    desk().form.CbJour.setListIndex(0);
    const QString seats = desk().form.Tot[0].caption;
    EXPECT_EQ(seats, "52"); // A2 and C1
    EXPECT_EQ(desk().engine.shownPage().state.form.Tot[0].caption, seats);
    EXPECT_EQ(desk().form.Tot[0].caption, seats);
}

TEST_F(ThePages, areDrawnInOneGo)
{
    EXPECT_EQ(roomsOf(desk().engine.drawnPage()), roomsOf(desk().engine.shownPage()));
}

TEST_F(ThePages, giveEveryRoomTheColourOfItsRow)
{
    desk().form.Total_L_P.setText("2"); // rows 0 to 2: A1, A2, B1
    desk().form.Colorer.setChecked(true);
    desk().engine.refreshPlan();
    const auto& rows = desk().engine.content().rows;
    ASSERT_EQ(rows.size(), 2U);
    const auto colors = desk().engine.roomColors({"A1", "A2", "B1", "B2", "C1"});
    ASSERT_EQ(colors.size(), 5U);
    EXPECT_EQ(colors[1], rows[0].color);
    EXPECT_EQ(colors[2], rows[1].color);
    EXPECT_EQ(colors[3], colors[0]); // B2 begins the next page as A1 began the first
    desk().form.Command3.press();
    EXPECT_EQ(desk().engine.roomColors({"A1", "A2", "B1", "B2", "C1"})[4],
              desk().engine.content().rows.front().color);
}

TEST_F(ThePages, holdEveryRoomOnceWhereNoneIsToBeLeftOut)
{
    const std::vector<plan::PlanPage> pages = desk().engine.pagesOfEveryRoom(2);
    ASSERT_EQ(pages.size(), 3U);
    EXPECT_EQ(roomsOf(pages[0]), QStringList({"A1", "A2"}));
    EXPECT_EQ(roomsOf(pages[1]), QStringList({"B1", "B2"}));
    EXPECT_EQ(roomsOf(pages[2]), QStringList({"C1"}));
    EXPECT_EQ(pages[0].content.rows[1].boxes.size(), 1U); // A2 on Monday
    EXPECT_EQ(pages[2].content.rows[0].boxes.size(), 1U);
    EXPECT_EQ(pages[2].number, 3);
    EXPECT_EQ(pages[2].count, 3);
    for (const plan::PlanPage& page : pages) {
        EXPECT_FALSE(page.state.form.Salle[0].visible);
        EXPECT_EQ(page.state.form.Salle[0].caption, "");
    }
    EXPECT_TRUE(pages[2].state.form.Salle[1].visible);
    EXPECT_FALSE(pages[2].state.form.Salle[2].visible);
}

TEST_F(ThePages, ofEveryRoomAreAsFullAsEachOther)
{
    // Five rooms, four at most on a page: three and two.
    const std::vector<plan::PlanPage> pages = desk().engine.pagesOfEveryRoom(4);
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(roomsOf(pages[0]), QStringList({"A1", "A2", "B1"}));
    EXPECT_EQ(roomsOf(pages[1]), QStringList({"B2", "C1"}));
    EXPECT_EQ(desk().engine.pagesOfEveryRoom(29).size(), 1U);
}

TEST_F(ThePages, ofEveryRoomLeaveTheWindowAsItIs)
{
    desk().form.Total_L_P.setText("2");
    desk().form.Command3.press();
    const plan::PlanPage before = desk().engine.drawnPage();
    EXPECT_EQ(desk().engine.pagesOfEveryRoom(3).size(), 2U);
    EXPECT_EQ(desk().engine.drawnPage().state.form, before.state.form);
    EXPECT_EQ(desk().engine.drawnPage().content.rows, before.content.rows);
}

TEST_F(ThePages, ofEveryRoomKeepTheirColours)
{
    const auto first = desk().engine.pagesOfEveryRoom(5);
    const auto second = desk().engine.pagesOfEveryRoom(5);
    ASSERT_EQ(first.front().content.rows.size(), 5U);
    EXPECT_EQ(second.front().content.rows, first.front().content.rows);
}

TEST_F(ThePages, ofEveryRoomAreNoneWithoutRooms)
{
    desk().form.cb_Locaux.setListIndex(9);
    EXPECT_TRUE(desk().engine.pagesOfEveryRoom(5).empty());
}

TEST_F(ThePages, areFoundByTheirRooms)
{
    desk().form.Total_L_P.setText("2"); // A1, A2 and B1; B2 and C1
    EXPECT_EQ(desk().engine.showRoom("C1"), engine::Engine::RoomLine::Drawn);
    EXPECT_EQ(desk().engine.state().page.room(1).name, "C1");
    EXPECT_EQ(desk().engine.showRoom("B2"), engine::Engine::RoomLine::Greyed);
    EXPECT_EQ(desk().engine.showRoom("A2"), engine::Engine::RoomLine::Drawn);
    EXPECT_EQ(desk().engine.state().page.room(1).name, "A2");
}

TEST_F(ThePages, doNotHoldARoomThatTheChoiceLeavesOut)
{
    desk().form.cb_Locaux.setListIndex(1);
    const QStringList drawn = desk().drawn();
    EXPECT_EQ(desk().engine.showRoom("C1"), engine::Engine::RoomLine::None);
    EXPECT_EQ(desk().drawn(), drawn);
}

TEST_F(ThePages, nameTheRoomsThatTheyLeaveOut)
{
    desk().form.Total_L_P.setText("2"); // A2 and B1, then C1
    const std::vector<plan::PlanPage> pages = desk().engine.allPages();
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(pages[0].leftOut, QStringList("A1"));
    EXPECT_EQ(pages[1].leftOut, QStringList("B2"));
    EXPECT_EQ(desk().engine.shownPage().leftOut, QStringList("A1"));
}

TEST_F(ThePages, nameTheRoomBehindThemThatNoPageDraws)
{
    desk().form.Total_L_P.setText("3"); // A2 to B2; C1 would be a page's row 0
    const std::vector<plan::PlanPage> pages = desk().engine.allPages();
    ASSERT_EQ(pages.size(), 1U);
    EXPECT_EQ(pages[0].leftOut, QStringList({"A1", "C1"}));
}

TEST_F(ThePages, leaveNoRoomOutWhereEveryOneHasARow)
{
    desk().form.Total_L_P.setText("3");
    desk().form.EveryRoom.setChecked(true);
    const std::vector<plan::PlanPage> pages = desk().engine.allPages();
    ASSERT_EQ(pages.size(), 2U);
    EXPECT_EQ(roomsOf(pages[0]), QStringList({"A1", "A2", "B1"}));
    EXPECT_EQ(roomsOf(pages[1]), QStringList({"B2", "C1"}));
    EXPECT_EQ(pages[0].leftOut, QStringList());
    EXPECT_EQ(desk().engine.shownPage().leftOut, QStringList());
}

TEST_F(ThePages, leaveNothingOutWithoutRooms)
{
    desk().form.cb_Locaux.setListIndex(9);
    EXPECT_EQ(desk().engine.allPages()[0].leftOut, QStringList());
}
