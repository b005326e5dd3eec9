#include "plan/PlanRefresh.h"

#include "plan/PlanDesk.h"
#include "support/RuntimeMatchers.h"

using lookup::RoomQuestion;
using plan::PlanBox;
using runtime::ErrorNumber;
using test::PlanDesk;

TEST(PlanRefresh, drawsNothingWhileTheWindowIsNotVisible)
{
    PlanDesk desk(5);
    desk.form.visible = false;
    desk.draw();
    EXPECT_TRUE(desk.rows.asked.empty());
    EXPECT_TRUE(desk.drawn().empty());
    EXPECT_EQ(desk.engine.refreshCount(), 0U);
}

TEST(PlanRefresh, asksAboutTenSlotsOfEveryRowButRowZero)
{
    PlanDesk desk(4);
    desk.form.CbJour.design(desk.form.CbJour.items(), 2);
    desk.draw();
    ASSERT_EQ(desk.rows.asked.size(), 30U);
    EXPECT_EQ(desk.rows.asked.front().room, "R01");
    EXPECT_EQ(desk.rows.asked.front().seanceKey, "Mercredi1");
    EXPECT_EQ(desk.rows.asked.front().tranche, "1");
    EXPECT_EQ(desk.rows.asked[9].seanceKey, "Mercredi10");
    EXPECT_EQ(desk.rows.asked.back().room, "R03");
    EXPECT_EQ(desk.drawnRooms(), QStringList({"R01", "R02", "R03"}));
}

TEST(PlanRefresh, drawsRows1To19OfTwentyFiveRoomsWithNineteenLines)
{
    PlanDesk desk(25, "19");
    desk.draw();
    EXPECT_EQ(desk.form.Salle[0].caption, "R00");
    EXPECT_EQ(desk.drawnRooms(),
              QStringList({"R01", "R02", "R03", "R04", "R05", "R06", "R07", "R08", "R09", "R10",
                           "R11", "R12", "R13", "R14", "R15", "R16", "R17", "R18", "R19"}));
    EXPECT_EQ(desk.drawn().front().index, 1);
    EXPECT_EQ(desk.drawn().back().index, 19);
}

TEST(PlanRefresh, drawsAnEmptyRoomSetAsAnEmptyPlan)
{
    PlanDesk desk(0);
    desk.draw();
    EXPECT_TRUE(desk.drawn().empty());
    EXPECT_EQ(desk.yields, 0);
}

TEST(PlanRefresh, yieldsOncePerRow)
{
    PlanDesk desk(8);
    desk.draw();
    EXPECT_EQ(desk.yields, 7);
}

TEST(PlanRefresh, drawsABoxWhereTheSeanceStartsAndAsWideAsItLasts)
{
    PlanDesk desk(3);
    desk.meeting(1, 2);
    desk.meeting(2, 5).set("Debut", "14h15").set("Durée", "45");
    desk.draw();
    const PlanBox& first = desk.box(1);
    EXPECT_EQ(first.slot, 2);
    EXPECT_EQ(first.x, 1620 + 2400); // 90 minutes behind 8h00
    EXPECT_DOUBLE_EQ(first.width, 2400);
    EXPECT_EQ(first.minutes, 90);
    EXPECT_FALSE(first.makeUp);
    EXPECT_EQ(first.cell.CellText, "GC1 Dupont [Algèbre]");
    const PlanBox& second = desk.box(2);
    EXPECT_EQ(second.x, 1620 + 10000); // 375 minutes
    EXPECT_DOUBLE_EQ(second.width, 1200);
    EXPECT_EQ(second.minutes, 45);
}

TEST(PlanRefresh, readsTheDurationAtTheStartOfItsText)
{
    PlanDesk desk(5);
    desk.meeting(1, 1).set("Durée", "60 mn");
    desk.meeting(2, 1).set("Durée", "une heure");
    desk.meeting(3, 1).set("Durée", "52.5");
    desk.meeting(4, 1).null("Durée");
    desk.draw();
    EXPECT_EQ(desk.box(1).minutes, 60);
    EXPECT_EQ(desk.box(2).minutes, 0);
    EXPECT_EQ(desk.box(3).minutes, 52); // halves to the even minute
    EXPECT_DOUBLE_EQ(desk.box(3).width, 1400);
    EXPECT_EQ(desk.box(4).minutes, 90);
}

TEST(PlanRefresh, drawsABoxWithoutAStartAtTheSlotsTick)
{
    PlanDesk desk(2);
    desk.meeting(1, 3).null("Debut");
    desk.draw();
    EXPECT_EQ(desk.box(1).x, 1620 + 3200); // Label1(2): 10h00
}

TEST(PlanRefresh, stopsAtAStartThatIsNoTime)
{
    PlanDesk desk(2);
    desk.meeting(1, 3).set("Debut", "midi");
    const runtime::RunTimeError error = test::errorOf([&] { desk.draw(); });
    EXPECT_EQ(error.number(), ErrorNumber::TypeMismatch);
    EXPECT_EQ(error.activity(), "Lecture de l’heure « midi »\n"
                                "Dessin de la salle « R01 », séance « Lundi3 »");
}

TEST(PlanRefresh, stopsAtADurationBeyondSixteenBits)
{
    PlanDesk desk(2);
    desk.meeting(1, 3).set("Durée", "32768");
    const runtime::RunTimeError error = test::errorOf([&] { desk.draw(); });
    EXPECT_EQ(error.number(), ErrorNumber::Overflow);
    EXPECT_EQ(error.activity(), "Lecture de la durée « 32768 »\n"
                                "Dessin de la salle « R01 », séance « Lundi3 »");
}

TEST(PlanRefresh, asksForMakeUpsOfFreeSlotsOnlyWhileDateIsTicked)
{
    PlanDesk desk(2);
    desk.meeting(1, 1);
    desk.makeUp(1, 1).set("Classe", "GC9");
    desk.makeUp(1, 3);
    desk.draw();
    EXPECT_EQ(desk.rows.asked.size(), 10U);
    EXPECT_EQ(desk.engine.markers().MarkerCount(), 1);
    desk.rows.asked.clear();
    desk.form.Check2.setChecked(true);
    desk.draw();
    EXPECT_EQ(desk.rows.asked.size(), 19U); // nine slots are free
    EXPECT_EQ(desk.rows.asked[1].seanceKey, "Lundi2");
    EXPECT_EQ(desk.rows.asked[2].seanceKey, "Lundi2");
    EXPECT_EQ(desk.rows.asked[2].table, RoomQuestion::Table::ratrap);
    EXPECT_EQ(desk.rows.asked[2].date, QDate(2026, 10, 12));
}

TEST(PlanRefresh, hatchesAMakeUpAndNotTheNextBox)
{
    PlanDesk desk(2);
    desk.form.Check2.setChecked(true);
    desk.makeUp(1, 2);
    desk.meeting(1, 3);
    desk.draw();
    EXPECT_TRUE(desk.box(1).makeUp);
    EXPECT_FALSE(desk.box(2).makeUp);
}

TEST(PlanRefresh, asksForExamsAloneInExamMode)
{
    PlanDesk desk(2);
    desk.form.Check2.setChecked(true);
    desk.form.OpExam().click() = nullptr;
    desk.form.OpExam().select();
    desk.rows.examen("R01", "Lundi1", "1");
    desk.draw();
    EXPECT_EQ(desk.rows.asked.size(), 10U);
    EXPECT_EQ(desk.rows.asked[0].table, RoomQuestion::Table::examen);
    EXPECT_EQ(desk.engine.markers().MarkerCount(), 1);
}

TEST(PlanRefresh, numbersTheBoxesOverAllRows)
{
    PlanDesk desk(4);
    for (int room = 1; room <= 3; ++room) {
        desk.meeting(room, 1);
        desk.meeting(room, 4);
    }
    desk.draw();
    EXPECT_EQ(desk.markers(), std::vector<int>({1, 2, 3, 4, 5, 6}));
    desk.draw(); // from 1 again
    EXPECT_EQ(desk.markers(), std::vector<int>({1, 2, 3, 4, 5, 6}));
    EXPECT_EQ(desk.engine.markers().MarkerCount(), 6);
}

TEST(PlanRefresh, keepsTheSeanceBehindEachBox)
{
    PlanDesk desk(2);
    desk.meeting(1, 2).set("TypeS1", 4).set("TypeS3B", 6).set("Commune", db::Value(true));
    desk.meeting(1, 2).set("Classe", "GC2");
    desk.form.DTPicker1.setValue(QDate(2026, 10, 15));
    desk.draw();
    const plan::Marqueur& record = desk.marker(1);
    EXPECT_EQ(record.Classes, "GC1\tGC2");
    EXPECT_EQ(record.Seance, "Lundi2");
    EXPECT_EQ(record.Tranche, 1);
    EXPECT_EQ(record.Matiere, "Algèbre");
    EXPECT_EQ(record.Salle, "R01");
    EXPECT_EQ(record.Enseignant1, "Dupont");
    EXPECT_EQ(record.TypeS1, 4);
    EXPECT_EQ(record.TypeS3B, 6);
    EXPECT_EQ(record.Duree, 90);
    EXPECT_TRUE(record.Commune);
    EXPECT_EQ(record.Debut, "9h30");
    EXPECT_EQ(record.Jour, QDate(2026, 10, 15));
    EXPECT_EQ(record.Choix, 1);
    EXPECT_EQ(record.newnature, "00");
}

TEST(PlanRefresh, keepsRecordsThatNoBoxUsesAnyMore)
{
    PlanDesk desk(2);
    desk.meeting(1, 1);
    desk.meeting(1, 2);
    desk.draw();
    desk.form.CbJour.setListIndex(1); // nothing on Tuesdays
    EXPECT_EQ(desk.engine.markers().MarkerCount(), 0);
    EXPECT_EQ(desk.engine.content().box(1), nullptr);
    EXPECT_EQ(desk.marker(2).Debut, "9h30");
    EXPECT_EQ(test::errorNumberOf([&] { static_cast<void>(desk.marker(3)); }),
              ErrorNumber::SubscriptOutOfRange);
    EXPECT_EQ(test::errorNumberOf([&] { static_cast<void>(desk.marker(0)); }),
              ErrorNumber::SubscriptOutOfRange);
}

TEST(PlanRefresh, testsTheAbsencesOfTheFirstClass)
{
    PlanDesk desk(2);
    desk.meeting(1, 1).set("Classe", " GC1 ");
    desk.meeting(1, 1).set("Classe", "GC2");
    desk.absences.classes = {"GC1"};
    desk.draw();
    EXPECT_EQ(desk.absences.asked, QStringList({"class GC1", "student GC1/GC1"}));
    EXPECT_TRUE(desk.box(1).classAbsent);
    EXPECT_FALSE(desk.box(1).studentAbsent);
    EXPECT_EQ(desk.box(1).absentToolTip, "");
}

TEST(PlanRefresh, namesTheClassesOfAbsentStudents)
{
    PlanDesk desk(2);
    desk.meeting(1, 1);
    desk.meeting(1, 1).set("Classe", "GC2");
    desk.absences.students = {"GC1"};
    desk.draw();
    EXPECT_FALSE(desk.box(1).classAbsent);
    EXPECT_TRUE(desk.box(1).studentAbsent);
    EXPECT_EQ(desk.box(1).absentToolTip, "GC1\tGC2 Absent");
}

TEST(PlanRefresh, takesAnAbsenceThatCannotBeAskedAboutForNone)
{
    PlanDesk desk(3);
    desk.meeting(1, 1);
    desk.meeting(2, 1);
    desk.absences.classes = {"GC1"};
    desk.absences.fails = true;
    desk.draw();
    EXPECT_FALSE(desk.box(1).classAbsent);
    EXPECT_EQ(desk.engine.markers().MarkerCount(), 2);
}

TEST(PlanRefresh, countsTheTeachersOfAText)
{
    EXPECT_EQ(plan::CountSlashParts(""), 1);
    EXPECT_EQ(plan::CountSlashParts("Dupont"), 1);
    EXPECT_EQ(plan::CountSlashParts("Dupont/Durand"), 2);
    EXPECT_EQ(plan::CountSlashParts("Dupont/Durand/Petit"), 3);
    EXPECT_EQ(plan::CountSlashParts("a/b/c/d"), 3);
}
