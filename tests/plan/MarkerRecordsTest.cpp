#include "plan/MarkerRecords.h"

#include "support/RuntimeMatchers.h"

using plan::MarkerRecords;
using plan::Marqueur;
using runtime::ErrorNumber;
using test::errorNumberOf;

namespace
{

const QDate kDay(2026, 10, 15);

lookup::RoomCell cell()
{
    lookup::RoomCell cell;
    cell.CellClassList = "GC1\tGC2";
    cell.CellSeance = "Lundi3";
    cell.CellSubject = "Algèbre";
    cell.CellRoom = "A1";
    cell.CellTeacher = "Dupont";
    cell.CellTypeA = "4";
    cell.CellTypeB = "6";
    cell.CellDuration = "135";
    cell.CellCommon = true;
    cell.CellStart = "11h15";
    cell.CellWeekNature = "10/20";
    return cell;
}

} // namespace

TEST(MarkerRecords, areFilledFromTheCell)
{
    MarkerRecords records;
    EXPECT_EQ(records.fill(cell(), 2, kDay), 1);
    const Marqueur& record = records.at(1);
    EXPECT_EQ(record.Classes, "GC1\tGC2");
    EXPECT_EQ(record.Seance, "Lundi3");
    EXPECT_EQ(record.Tranche, 2);
    EXPECT_EQ(record.Matiere, "Algèbre");
    EXPECT_EQ(record.Salle, "A1");
    EXPECT_EQ(record.Enseignant1, "Dupont");
    EXPECT_EQ(record.TypeS1, 4);
    EXPECT_EQ(record.TypeS3B, 6);
    EXPECT_EQ(record.Duree, 135);
    EXPECT_TRUE(record.Commune);
    EXPECT_EQ(record.Debut, "11h15");
    EXPECT_EQ(record.Jour, kDay);
    EXPECT_EQ(record.Choix, 1);
    EXPECT_EQ(record.newnature, "10/20");
}

TEST(MarkerRecords, keepTheLastToggleWhenTheyAreFilledAgain)
{
    MarkerRecords records;
    records.fill(cell(), 1, kDay);
    records.at(1).AbsClasse = true;
    records.startAgain();
    EXPECT_EQ(records.MarkerCount(), 0);
    EXPECT_EQ(records.fill(cell(), 1, kDay), 1);
    EXPECT_TRUE(records.at(1).AbsClasse);
}

TEST(MarkerRecords, neverShrink)
{
    MarkerRecords records;
    records.fill(cell(), 1, kDay);
    records.fill(cell(), 1, kDay);
    records.startAgain();
    EXPECT_EQ(records.at(2).Classes, "GC1\tGC2");
}

TEST(MarkerRecords, areNumberedFromOne)
{
    MarkerRecords records;
    records.fill(cell(), 1, kDay);
    for (const int number : {-1, 0, 2}) {
        EXPECT_EQ(errorNumberOf([&] { static_cast<void>(records.at(number)); }),
                  ErrorNumber::SubscriptOutOfRange);
    }
}

TEST(MarkerRecords, refuseNumbersBeyondSixteenBitsAndSayWhich)
{
    MarkerRecords records;
    lookup::RoomCell wide = cell();
    wide.CellTypeB = "40000";
    const runtime::RunTimeError error = test::errorOf([&] { records.fill(wide, 1, kDay); });
    EXPECT_EQ(error.number(), ErrorNumber::Overflow);
    EXPECT_EQ(error.activity(), "Lecture du type de séance « 40000 »");
    EXPECT_EQ(test::errorOf([&] { records.fill(cell(), 40000, kDay); }).activity(),
              "Lecture du numéro de période « 40000 »");
}
