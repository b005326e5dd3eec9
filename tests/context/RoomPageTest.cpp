#include "context/RoomPage.h"

#include "context/ContextDesk.h"
#include "support/RuntimeMatchers.h"

#include <memory>
#include <optional>

using namespace test;

namespace
{

/// Pages over rooms named R00, R01, ... with as many places as their number.
class RoomPages : public testing::Test
{
protected:
    void rooms(int count)
    {
        Timetable timetable(m_database, {"salle"});
        for (int room = 0; room < count; ++room) {
            timetable.row("salle", {{"Zone", 1}, {"Nom", name(room)}, {"places", room}});
        }
        timetable.load();
        desk.emplace(m_database);
        page().RoomTotal = count;
    }
    [[nodiscard]] static QString name(int room)
    {
        return QString("R%1").arg(room, 2, 10, QChar('0'));
    }
    /// Fills the page that starts at that position.
    void fill(int offset, const QString& lines)
    {
        page().PageOffset = offset;
        page().PageStart = offset;
        desk->form.Total_L_P.setText(lines);
        desk->rooms.FillRoomPage();
    }
    context::RoomPage& page() { return desk->page; }
    [[nodiscard]] QString room(std::size_t row) const { return desk->form.Salle.at(row).caption; }
    /// How many rows are visible, from row 0 on.
    [[nodiscard]] std::size_t visibleRows() const
    {
        std::size_t row = 0;
        while (row < desk->form.Salle.size() && desk->form.Salle[row].visible) {
            EXPECT_TRUE(desk->form.Cap[row].visible);
            ++row;
        }
        return row;
    }

    std::optional<ContextDesk> desk;

private:
    TestDatabase m_database{DatabaseKind::Sqlite};
};

} // namespace

TEST_F(RoomPages, fillOneRowMoreThanTheBoxSays)
{
    rooms(35);
    fill(0, "19");
    EXPECT_EQ(room(0), "R00");
    EXPECT_EQ(room(19), "R19");
    EXPECT_EQ(desk->form.Cap[19].caption, "19");
    EXPECT_EQ(page().RowsShown, 19);
    EXPECT_EQ(visibleRows(), 20);
}

TEST_F(RoomPages, skipOneRoomMoreThanTheirStartSays)
{
    rooms(35);
    fill(10, "10");
    EXPECT_EQ(room(0), "R11");
    EXPECT_EQ(room(10), "R21");
    EXPECT_EQ(page().RowsShown, 10);
}

TEST_F(RoomPages, endEarlyAtTheLastRoom)
{
    rooms(35);
    fill(0, "10");
    fill(32, "10");
    EXPECT_EQ(room(0), "R33");
    EXPECT_EQ(room(1), "R34");
    EXPECT_EQ(page().RowsShown, 1);
    EXPECT_EQ(visibleRows(), 2);
    EXPECT_EQ(room(2), "");    // the first hidden row
    EXPECT_EQ(room(3), "R03"); // the others keep what they held
}

TEST_F(RoomPages, hideTheRowsBelowASmallRoomSet)
{
    rooms(4);
    fill(0, "10");
    EXPECT_EQ(page().RowsShown, 3);
    EXPECT_EQ(visibleRows(), 4);
    EXPECT_EQ(room(4), "");
}

TEST_F(RoomPages, emptyTheFirstHiddenRowOnlyOnTheLastPage)
{
    rooms(4);
    desk->form.Salle[4].caption = "avant";
    page().RoomTotal = 30; // counted over more rooms than the filter now lets through
    fill(0, "10");
    EXPECT_EQ(room(4), "avant");
    EXPECT_EQ(visibleRows(), 4);
    page().RoomTotal = 11; // exactly one page
    fill(0, "10");
    EXPECT_EQ(room(4), "");
}

TEST_F(RoomPages, areEmptyBeyondTheLastRoom)
{
    rooms(4);
    fill(4, "10");
    EXPECT_EQ(page().RowsShown, -1);
    EXPECT_EQ(visibleRows(), 0);
    EXPECT_EQ(room(0), "");
}

TEST_F(RoomPages, holdNoMoreThanThirtyRows)
{
    rooms(40);
    fill(0, "35");
    EXPECT_EQ(page().RowsShown, 29);
    EXPECT_EQ(room(29), "R29");
}

TEST_F(RoomPages, readTheNumberAtTheStartOfTheBox)
{
    rooms(35);
    fill(0, "5 lignes");
    EXPECT_EQ(page().RowsShown, 5);
    fill(0, "lignes");
    EXPECT_EQ(page().RowsShown, 0); // 0 lines: row 0 alone
}

TEST_F(RoomPages, areEmptyForANegativeNumberOfLines)
{
    rooms(4);
    fill(0, "-5");
    EXPECT_EQ(page().RowsShown, -5);
    EXPECT_EQ(visibleRows(), 0);
}

TEST_F(RoomPages, startAtTheFirstRoomBeforeTheList)
{
    rooms(4);
    fill(-5, "2");
    EXPECT_EQ(room(0), "R00");
    EXPECT_EQ(page().RowsShown, 2);
}

TEST_F(RoomPages, areAlignedAgainWithAChangedRoomFilter)
{
    rooms(35);
    fill(10, "10");
    desk->form.cb_Locaux.setListIndex(1);
    EXPECT_EQ(desk->plan.calls, QStringList({"PlaceRoomRows", "Command2_Click", "Command3_Click",
                                             "Command2_Click", "RefreshPlan"}));
    EXPECT_EQ(page().PageOffset, 10); // the page buttons move it, not the filter
    EXPECT_EQ(desk->form.Total_L_P.text(), "10");
}

TEST_F(RoomPages, areFilledBeforeThePageButtonsArePressed)
{
    rooms(35);
    desk->form.Total_L_P.setText("10");
    QString roomAtRedraw;
    desk->plan.onRefresh = [&] { roomAtRedraw = room(10); };
    desk->form.cb_Locaux.setListIndex(1);
    EXPECT_EQ(roomAtRedraw, "R10");
}

TEST_F(RoomPages, areAlignedByEveryControlOfTheFilter)
{
    rooms(35);
    desk->form.Combo1.design({"GC"}, 0);
    desk->form.ElemDep.setChecked(true);
    EXPECT_TRUE(desk->form.Chk_Neutre.visible);
    desk->form.Combo1.setListIndex(0);
    desk->form.Chk_Neutre.setChecked(true);
    desk->form.ElemDep.setChecked(false);
    EXPECT_FALSE(desk->form.Chk_Neutre.visible);
    EXPECT_EQ(desk->plan.redraws(), 4);
    EXPECT_EQ(desk->plan.calls.count("Command3_Click"), 4);
}

TEST_F(RoomPages, arePulledBackToTheLastRoomByTheFilter)
{
    rooms(35);
    fill(36, "10");
    QStringList lines;
    desk->form.Total_L_P.change = [&] { lines.append(desk->form.Total_L_P.text()); };
    desk->form.cb_Locaux.setListIndex(1);
    EXPECT_EQ(page().PageOffset, 34);
    EXPECT_EQ(page().PageStart, 34);
    EXPECT_EQ(lines, QStringList("34")); // the box takes the offset
}

TEST_F(RoomPages, stayWhenTheyStartExactlyAtTheNumberOfRooms)
{
    rooms(35);
    fill(35, "10");
    desk->form.cb_Locaux.setListIndex(1);
    EXPECT_EQ(page().PageOffset, 35);
}

TEST(RoomPage, writesARoomAndItsLabelTogether)
{
    form::PlanForm form;
    context::RoomPage page;
    page.setName(form, 2, "A101");
    page.setPlaces(form, 2, "45");
    EXPECT_EQ(page.room(2).name, "A101");
    EXPECT_EQ(page.room(2).places, "45");
    EXPECT_EQ(form.Salle[2].caption, "A101");
    EXPECT_EQ(form.Cap[2].caption, "45");
    EXPECT_EQ(page.room(1).name, "");
    EXPECT_EQ(page.room(3).places, "");
}

TEST(RoomPage, hasThirtyRowsAndNoOther)
{
    const context::RoomPage page;
    EXPECT_EQ(page.room(0).name, "");
    EXPECT_EQ(page.room(29).name, "");
    using runtime::ErrorNumber;
    EXPECT_EQ(errorNumberOf([&] { static_cast<void>(page.room(30)); }),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(errorNumberOf([&] { static_cast<void>(page.room(-1)); }),
              ErrorNumber::SubscriptOutOfRange);
}

TEST(RoomPage, holdsTheLinesThatItsBoxBeginsWith)
{
    form::PlanForm form;
    EXPECT_EQ(context::linesPerPage(form), 0);
    form.Total_L_P.setText("12 lignes");
    EXPECT_EQ(context::linesPerPage(form), 12);
    form.Total_L_P.setText("-3");
    EXPECT_EQ(context::linesPerPage(form), -3);
}
