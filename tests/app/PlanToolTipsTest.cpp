#include "app/PlanToolTips.h"

#include "plan/RoomRows.h"
#include "support/RuntimeMatchers.h"

using namespace app;

namespace
{

/// A lecture of 90 minutes from 8h30 on in B1.
plan::PlanRow rowOfB1()
{
    plan::PlanRow row;
    row.room = "B1";
    plan::PlanBox box;
    box.cell.CellStart = "8h30";
    box.cell.CellDuration = "90";
    box.cell.CellText = "  L1  A\r\n\r\nDupont\r\n";
    row.boxes.push_back(box);
    return row;
}

const form::PlanForm usual;

/// Row 0 at 345 twips and the two below it, each 368 lower.
form::PlanForm threeRows()
{
    form::PlanForm rows;
    rows.Salle[0].place = {0, 345, 1500, 300};
    plan::PlaceRoomRows(rows);
    for (std::size_t row = 0; row < 3; ++row) {
        rows.Salle[row].visible = true;
        rows.Salle[row].caption = QStringLiteral("S%1").arg(row);
    }
    rows.Salle[3].visible = false;
    rows.Salle[3].caption = "S3";
    return rows;
}

} // namespace

TEST(BoxToolTip, isRoomTimeAndTextLineByLine)
{
    const plan::PlanRow row = rowOfB1();
    EXPECT_EQ(boxToolTip(usual, row, row.boxes[0]), "B1 – 8h30, 90 min\nL1 A\nDupont");
}

TEST(BoxToolTip, saysInWordsWhatTheBoxShowsInPictures)
{
    plan::PlanRow row = rowOfB1();
    row.boxes[0].makeUp = true;
    row.boxes[0].classAbsent = true;
    EXPECT_EQ(boxToolTip(usual, row, row.boxes[0]),
              "B1 – 8h30, 90 min\nL1 A\nDupont\nRattrapage\nClasse absente");
}

TEST(RoomToolTip, isTheRoomAtThisHeight)
{
    const form::PlanForm rows = threeRows();
    const int top = rows.Salle[2].place.top;
    EXPECT_EQ(roomToolTip(rows, top), "S2");
    EXPECT_EQ(roomToolTip(rows, top + 299), "S2");
    EXPECT_EQ(roomToolTip(rows, top + 300), ""); // between two rows
    EXPECT_EQ(roomToolTip(rows, rows.Salle[1].place.top), "S1");
}

TEST(RoomToolTip, saysThatTheGreyedRowIsNotDrawn)
{
    EXPECT_EQ(roomToolTip(threeRows(), 345),
              "S0\nSalle placée juste avant la première ligne du plan : ses séances ne sont pas "
              "dessinées ici");
}

TEST(RoomToolTip, isEmptyWhereNoRowIsShown)
{
    const form::PlanForm rows = threeRows();
    EXPECT_EQ(roomToolTip(rows, 344), "");
    EXPECT_EQ(roomToolTip(rows, rows.Salle[3].place.top + 1), "");
}

TEST(TotalsToolTip, tellsHowOldTotalsAreCountedAnew)
{
    plan::PlanState state;
    EXPECT_EQ(totalsToolTip(state), "");
    state.totals.isOld = true;
    EXPECT_EQ(totalsToolTip(state), "Places occupées, comptées avant le dernier choix.\n"
                                    "Choisir le jour les compte à nouveau.");
}
