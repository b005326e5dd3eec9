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

TEST(BoxToolTip, explainsTheLabels)
{
    plan::PlanRow row = rowOfB1();
    row.places = "32";
    plan::PlanBox& box = row.boxes[0];
    box.cell.CellRowCount = 2;
    box.cell.CellClassList = "L1 A\tL1 B";
    box.cell.CellStudents = 20;
    box.group = plan::groupCounterOf(box.cell, row.places, true);
    const QString start = "B1 – 8h30, 90 min\nL1 A\nDupont";
    EXPECT_EQ(boxToolTip(usual, row, box), start +
                                               "\n2 groupes : L1 A, L1 B\nNombre d'étudiants : 20\n"
                                               "Compteur 2 : Cliquez Pour Plus de Détails");
    box.cell.CellStudents = 32;
    box.cell.CellCapacity = 35;
    box.group = plan::groupCounterOf(box.cell, row.places, true);
    EXPECT_EQ(boxToolTip(usual, row, box),
              start + "\n2 groupes : L1 A, L1 B\n"
                      "Dépassement 32/32 : inscrits 32, prévus 35, places 32\n"
                      "Compteur 2 : Cliquez Pour Plus de Détails");
    form::PlanForm plain;
    plain.Check3.setChecked(false); // no labels to explain
    EXPECT_EQ(boxToolTip(plain, row, box), start);
}

TEST(BoxToolTip, tellsTheWeekOfABoxThatStandsAlone)
{
    plan::PlanRow row = rowOfB1();
    row.boxes[0].cell.week = timetable::Week::B;
    EXPECT_EQ(boxToolTip(usual, row, row.boxes[0]), "B1 – 8h30, 90 min\nL1 A\nDupont\nSemaine B");
}

TEST(BoxToolTip, tellsWhatIsThereAtTheSameTime)
{
    plan::PlanRow row = rowOfB1();
    plan::PlanBox other = row.boxes[0];
    row.boxes[0].width = 2400;
    other.x = 1600; // an hour later
    other.width = 2400;
    other.minutes = 90;
    other.cell.CellStart = "9h30";
    other.cell.CellText = "L2 INFO\r\nMartin\r\n";
    row.boxes.push_back(other);
    EXPECT_EQ(boxToolTip(usual, row, row.boxes[0]),
              "B1 – 8h30, 90 min\nL1 A\nDupont\nEn même temps : 9h30 à 11h00, L2 INFO");
    row.boxes[1].x = 2400;
    EXPECT_EQ(boxToolTip(usual, row, row.boxes[0]), "B1 – 8h30, 90 min\nL1 A\nDupont");
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
