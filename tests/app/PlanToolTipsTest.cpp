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
plan::PlanState threeRows()
{
    plan::PlanState state;
    form::PlanForm& form = state.form;
    form.Salle[0].place = {0, 345, 1500, 300};
    plan::PlaceRoomRows(form);
    for (int row = 0; row < 4; ++row) {
        form.Salle[static_cast<std::size_t>(row)].visible = row < 3;
        state.page.setName(form, row, QStringLiteral("S%1").arg(row));
    }
    return state;
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
    const plan::PlanState rows = threeRows();
    const int top = rows.form.Salle[2].place.top;
    EXPECT_EQ(roomToolTip(rows, top), "S2");
    EXPECT_EQ(roomToolTip(rows, top + 299), "S2");
    EXPECT_EQ(roomToolTip(rows, top + 300), ""); // between two rows
    EXPECT_EQ(roomToolTip(rows, rows.form.Salle[1].place.top), "S1");
}

TEST(RoomToolTip, saysThatTheGreyedRowIsNotDrawn)
{
    EXPECT_EQ(roomToolTip(threeRows(), 345),
              "S0\nSalle placée juste avant la première ligne du plan : ses séances ne sont pas "
              "dessinées ici.\nUn clic montre sa journée.");
}

TEST(RoomToolTip, isEmptyWhereNoRowIsShown)
{
    const plan::PlanState rows = threeRows();
    EXPECT_EQ(roomToolTip(rows, 344), "");
    EXPECT_EQ(roomToolTip(rows, rows.form.Salle[3].place.top + 1), "");
}

TEST(TotalsToolTip, tellsHowOldTotalsAreCountedAnew)
{
    plan::PlanState state;
    for (form::Label& total : state.form.Tot) {
        total.visible = false;
    }
    EXPECT_EQ(totalsToolTip(state), "");
    state.totals.isOld = true;
    EXPECT_EQ(totalsToolTip(state), ""); // nothing was ever counted
    state.totals.line[0] = {"30", true};
    EXPECT_EQ(totalsToolTip(state), "Places occupées, comptées avant le dernier choix.\n"
                                    "Choisir le jour les compte à nouveau.");
}
