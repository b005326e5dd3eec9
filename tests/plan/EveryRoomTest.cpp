// Paging with "Toutes les salles": every room has a row.

#include "plan/PlanDesk.h"

#include <gtest/gtest.h>

using engine::Engine;
using test::PlanDesk;

namespace
{

/// 35 rooms of 30 places on pages of 10 lines, a course in slot 1 of each.
class EveryRoom : public testing::Test
{
protected:
    EveryRoom()
    {
        for (int room = 0; room < 35; ++room) {
            desk.meeting(room, 1);
        }
        desk.draw();
    }

    void next() { form.Command3.press(); }
    void previous() { form.Command2.press(); }
    /// First and last drawn room.
    [[nodiscard]] QString drawn() const
    {
        const QStringList rooms = desk.drawnRooms();
        return rooms.isEmpty() ? QString() : rooms.first() + ' ' + rooms.last();
    }
    /// Pages as "Page Suivante" shows them, from the shown one on.
    QStringList walk()
    {
        QStringList pages{drawn()};
        while (form.Command3.enabled) {
            next();
            pages << drawn();
        }
        return pages;
    }

    PlanDesk desk{35};
    form::PlanForm& form = desk.form;
};

} // namespace

TEST_F(EveryRoom, hasARow)
{
    form.EveryRoom.setChecked(true);
    EXPECT_EQ(walk(), QStringList({"R00 R09", "R10 R19", "R20 R29", "R30 R34"}));
    EXPECT_EQ(desk.page.PageOffset, 30);
    EXPECT_EQ(desk.page.RowsShown, 5);
    EXPECT_EQ(desk.page.listed, 35);
}

TEST_F(EveryRoom, isPassedOnTheWayBackToo)
{
    form.EveryRoom.setChecked(true);
    static_cast<void>(walk());
    previous();
    EXPECT_EQ(drawn(), "R20 R29");
    previous();
    previous();
    EXPECT_EQ(drawn(), "R00 R09");
    EXPECT_FALSE(form.Command2.enabled);
    EXPECT_TRUE(form.Command3.enabled);
}

TEST_F(EveryRoom, leavesRowZeroEmptyAndHidden)
{
    form.EveryRoom.setChecked(true);
    EXPECT_FALSE(form.Salle[0].visible);
    EXPECT_FALSE(form.Cap[0].visible);
    EXPECT_EQ(desk.page.room(0).name, "");
    EXPECT_EQ(form.Salle[1].place.top, form.Salle[0].place.top);
    EXPECT_TRUE(form.Salle[10].visible);
    EXPECT_FALSE(form.Salle[11].visible);
}

TEST_F(EveryRoom, keepsThePageThatHoldsTheFirstOne)
{
    next(); // R11 greyed, R12 to R21
    form.EveryRoom.setChecked(true);
    EXPECT_EQ(drawn(), "R10 R19");
    next();
    ASSERT_EQ(drawn(), "R20 R29");
    form.EveryRoom.setChecked(false); // R20 stands on the page of R11 to R21
    EXPECT_EQ(drawn(), "R12 R21");
    EXPECT_EQ(form.Salle[0].caption, "R11");
    EXPECT_TRUE(form.Salle[0].visible);
    EXPECT_EQ(form.Salle[1].place.top, form.Salle[0].place.top + form.Salle[0].place.height + 68);
}

TEST_F(EveryRoom, isReachedWhateverTheLinesArePerPage)
{
    form.EveryRoom.setChecked(true);
    next();
    form.Total_L_P.setText("12"); // R10 stands on the page from R00 on
    EXPECT_EQ(drawn(), "R00 R11");
    EXPECT_FALSE(form.Command2.enabled);
    EXPECT_EQ(walk(), QStringList({"R00 R11", "R12 R23", "R24 R34"}));
}

TEST_F(EveryRoom, isRedrawnOnceForOtherLines)
{
    form.EveryRoom.setChecked(true);
    const std::uint64_t before = desk.engine.refreshCount();
    form.Total_L_P.setText("12");
    EXPECT_EQ(desk.engine.refreshCount() - before, 1U);
}

TEST_F(EveryRoom, isListedFromTheFirstPageOnForAnotherFilter)
{
    form.EveryRoom.setChecked(true);
    next();
    const std::uint64_t before = desk.engine.refreshCount();
    form.cb_Locaux.setListIndex(1);
    EXPECT_EQ(desk.engine.refreshCount() - before, 1U);
    EXPECT_EQ(drawn(), "R00 R09");
    EXPECT_FALSE(form.Command2.enabled);
    EXPECT_TRUE(form.Command3.enabled);
    form.cb_Locaux.setListIndex(7); // no room
    EXPECT_EQ(drawn(), "");
    EXPECT_EQ(desk.page.RowsShown, 0);
    EXPECT_FALSE(form.Command3.enabled);
}

TEST_F(EveryRoom, isGoneToByItsName)
{
    form.EveryRoom.setChecked(true);
    EXPECT_EQ(desk.engine.showRoom("R20"), Engine::RoomLine::Drawn);
    EXPECT_EQ(drawn(), "R20 R29");
    const std::uint64_t before = desk.engine.refreshCount();
    EXPECT_EQ(desk.engine.showRoom("R29"), Engine::RoomLine::Drawn);
    EXPECT_EQ(desk.engine.refreshCount(), before); // it is shown already
    EXPECT_EQ(desk.engine.showRoom("R34"), Engine::RoomLine::Drawn);
    EXPECT_EQ(drawn(), "R30 R34");
    EXPECT_FALSE(form.Command3.enabled);
    EXPECT_EQ(desk.engine.showRoom("R00"), Engine::RoomLine::Drawn);
    EXPECT_EQ(drawn(), "R00 R09");
    EXPECT_EQ(desk.engine.showRoom("X"), Engine::RoomLine::None);
}

TEST_F(EveryRoom, standsOnTheFirstOrTheLastPage)
{
    form.EveryRoom.setChecked(true);
    desk.engine.showLastPage();
    EXPECT_EQ(drawn(), "R30 R34");
    desk.engine.showFirstPage();
    EXPECT_EQ(drawn(), "R00 R09");
    EXPECT_TRUE(form.Command3.enabled);
}

TEST_F(EveryRoom, isOnOneOfAllPages)
{
    form.EveryRoom.setChecked(true);
    next();
    QStringList rooms;
    const std::vector<plan::PlanPage> pages = desk.engine.allPages();
    for (const plan::PlanPage& page : pages) {
        EXPECT_EQ(page.leftOut, QStringList());
        for (const plan::PlanRow& row : page.content.rows) {
            rooms << row.room;
        }
    }
    EXPECT_EQ(pages.size(), 4U);
    EXPECT_EQ(rooms.size(), 35);
    EXPECT_EQ(rooms.removeDuplicates(), 0);
    EXPECT_EQ(drawn(), "R10 R19"); // the window stays
}

TEST_F(EveryRoom, hasTheColourOfItsRowWhereverItIsShown)
{
    form.EveryRoom.setChecked(true);
    std::vector<QString> all;
    for (int room = 0; room < 35; ++room) {
        all.push_back(QString("R%1").arg(room, 2, 10, QChar('0')));
    }
    const std::vector<form::Colour> colors = desk.engine.roomColors(all);
    EXPECT_EQ(colors[0], desk.drawn()[0].color);
    EXPECT_EQ(colors[1], desk.drawn()[1].color);
    next();
    EXPECT_EQ(colors[10], desk.drawn()[0].color);
    EXPECT_EQ(colors[11], desk.drawn()[1].color);
}

TEST_F(EveryRoom, countsOnFromPageToPage)
{
    form.EveryRoom.setChecked(true);
    form.Chk_Compt.setChecked(true);
    desk.draw();
    EXPECT_EQ(desk.totalsLine(), QStringList("300"));
    next();
    EXPECT_EQ(desk.totalsLine(), QStringList("600"));
    next();
    EXPECT_TRUE(desk.totals.CountingOn);
    next();
    EXPECT_EQ(desk.totalsLine(), QStringList("1050")); // all 35
    EXPECT_FALSE(desk.totals.CountingOn);
    previous();
    form.CbJour.setListIndex(0); // counts again
    EXPECT_EQ(desk.totalsLine(), QStringList("300"));
}

TEST_F(EveryRoom, isTickedBeforeTheWindowIsThereWithoutADrawing)
{
    form.visible = false;
    const std::uint64_t before = desk.engine.refreshCount();
    form.EveryRoom.setChecked(true);
    EXPECT_EQ(desk.engine.refreshCount(), before);
}
