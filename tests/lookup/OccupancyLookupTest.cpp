#include "lookup/OccupancyLookup.h"

#include "lookup/Meetings.h"
#include "support/RuntimeMatchers.h"

using namespace lookup;

namespace
{

/// Lookups for room A1 on Mondays of period 2, class, teachers and subject shown in one line, every
/// week. The hour ticks are those of the window, from 8h00 on.
class Occupancy : public testing::Test
{
protected:
    Occupancy()
    {
        view.options.showClass = view.options.showTeachers = view.options.showSubject = true;
        view.options.everyWeek = true;
        view.day.date = QDate(2026, 10, 14);
        for (int hour = 8; hour < 20; ++hour) {
            view.tickTimes << QString("%1h00").arg(hour);
        }
    }

    QString lookUp(int slot = 1, bool makeUp = false)
    {
        OccupancyLookup lookup(rows, view);
        m_cell = lookup.RoomOccupancy("A1", QString("Lundi%1").arg(slot), "2", makeUp);
        return m_cell ? m_cell->CellText : QString();
    }
    /// What the last lookup answered.
    [[nodiscard]] const RoomCell& cell() const { return m_cell.value(); }
    [[nodiscard]] bool hasAnswered() const { return m_cell.has_value(); }
    /// Only class and subject, and the subject filter on this subject.
    void filter(const QString& subject)
    {
        view.options.showTeachers = false;
        view.subject = subject;
    }

    View view;
    test::FakeRows rows;

private:
    std::optional<RoomCell> m_cell;
};

} // namespace

TEST_F(Occupancy, asksTheTimetableOfThePeriod)
{
    lookUp(3);
    ASSERT_EQ(rows.asked.size(), 1U);
    const RoomQuestion& question = rows.asked[0];
    EXPECT_EQ(question.table, RoomQuestion::Table::emplois);
    EXPECT_EQ(question.room, "A1");
    EXPECT_EQ(question.seanceKey, "Lundi3");
    EXPECT_EQ(question.tranche, "2");
}

TEST_F(Occupancy, asksForTheMakeUpsOfThePickedDate)
{
    lookUp(1, true);
    ASSERT_EQ(rows.asked.size(), 1U);
    EXPECT_EQ(rows.asked[0].table, RoomQuestion::Table::ratrap);
    EXPECT_EQ(rows.asked[0].date, QDate(2026, 10, 14));
}

TEST_F(Occupancy, asksForTheExamsOfTheExamWeek)
{
    view.day.exam = view.options.exam = true;
    view.day.examWeek = 3;
    lookUp();
    ASSERT_EQ(rows.asked.size(), 1U);
    EXPECT_EQ(rows.asked[0].table, RoomQuestion::Table::examen);
    EXPECT_EQ(rows.asked[0].examWeek, "3");
}

TEST_F(Occupancy, asksNothingAboutMakeUpsInExamMode)
{
    rows.examen("A1", "Lundi1", "1");
    view.day.exam = view.options.exam = true;
    lookUp(1, true);
    EXPECT_TRUE(rows.asked.empty());
    EXPECT_FALSE(hasAnswered()); // so that what the room's last lookup found stays
}

TEST_F(Occupancy, leavesAFreshCellForAFreeRoom)
{
    rows.emplois("A1", "Lundi1");
    lookUp(1);
    EXPECT_EQ(lookUp(2), "");
    EXPECT_EQ(cell(), RoomCell());
    EXPECT_EQ(cell().CellRowCount, 1);
}

TEST_F(Occupancy, keepsTheFactsOfTheRow)
{
    rows.emplois("A1", "Lundi3")
        .set("newnature", "10/20")
        .set("Commune", db::Value(true))
        .set("TypeS1", 4)
        .set("TypeS3B", 6)
        .set("Debut", "11h15")
        .set("Durée", "135");
    view.options.everyWeek = false;
    view.options.showsWeekA = true;
    EXPECT_EQ(lookUp(3), "GC1 Dupont [Algèbre]");
    EXPECT_EQ(cell().CellText, "GC1 Dupont [Algèbre]");
    EXPECT_EQ(cell().CellRowCount, 1);
    EXPECT_EQ(cell().CellStart, "11h15");
    EXPECT_EQ(cell().CellDuration, "135");
    EXPECT_EQ(cell().CellTeacher, "Dupont");
    EXPECT_EQ(cell().CellSubject, "Algèbre");
    EXPECT_TRUE(cell().CellCommon);
    EXPECT_EQ(cell().CellTypeA, "4");
    EXPECT_EQ(cell().CellTypeB, "6");
    EXPECT_EQ(cell().CellSeance, "Lundi3");
    EXPECT_EQ(cell().CellRoom, "A1");
    EXPECT_EQ(cell().CellWeekNature, "10/20");
}

TEST_F(Occupancy, namesTheFirstInvigilatorOfAnExam)
{
    rows.examen("A1", "Lundi1", "1").set("Resp1", "Noir").set("Resp2", "Blanc");
    view.day.exam = view.options.exam = true;
    EXPECT_EQ(lookUp(), "GC1 Dupont [Algèbre]");
    EXPECT_EQ(cell().CellTeacher, "Noir");
}

TEST_F(Occupancy, findsOnlyTheExamsOfTheRoomAndTheWeek)
{
    rows.examen("A2", "Lundi1", "1").set("XSalle", "A1").set("SalleB", "A1");
    rows.examen("A1", "Lundi1", "2");
    view.day.exam = view.options.exam = true;
    EXPECT_EQ(lookUp(), "");
    EXPECT_EQ(cell().CellRowCount, 1);
}

TEST_F(Occupancy, takesTheTicksTimeWithoutAStartAndNinetyMinutesWithoutADuration)
{
    rows.emplois("A1", "Lundi3").null("Debut").null("Durée");
    lookUp(3);
    EXPECT_EQ(cell().CellStart, "10h00"); // the caption of Label1(2)
    EXPECT_EQ(cell().CellDuration, "90");
}

TEST_F(Occupancy, hasNoTickForASlotBeyondThem)
{
    rows.emplois("A1", "Lundi13").null("Debut");
    EXPECT_EQ(lookUp(13), "GC1 Dupont [Algèbre]");
    EXPECT_EQ(cell().CellStart, "");
}

TEST_F(Occupancy, readsNullsAsEmpty)
{
    rows.emplois("A1", "Lundi1").null("Enseignant1").null("matière").null("newnature");
    lookUp();
    EXPECT_EQ(cell().CellTeacher, "");
    EXPECT_EQ(cell().CellSubject, "");
    EXPECT_EQ(cell().CellTypeA, "");
    EXPECT_EQ(cell().CellWeekNature, "");
    EXPECT_FALSE(cell().CellCommon);
}

TEST_F(Occupancy, leavesOutWhatTheTableLacks)
{
    rows.emplois("A1", "Lundi1").without("Durée").without("Commune").without("Enseignant1");
    EXPECT_EQ(lookUp(), "GC1 [Algèbre]");
    EXPECT_EQ(cell().CellDuration, "90");
    EXPECT_EQ(cell().CellTeacher, "");
}

TEST_F(Occupancy, isUnknownWhenTheQueryFails)
{
    rows.emplois("A1", "Lundi1");
    rows.timetableFails = true;
    EXPECT_EQ(lookUp(), "");
    RoomCell unknown;
    unknown.isUnknown = true;
    EXPECT_EQ(cell(), unknown);
}

TEST_F(Occupancy, isNotUnknownWhenAFieldFails)
{
    rows.emplois("A1", "Lundi1").without("Enseignant1").without("Debut");
    EXPECT_EQ(lookUp(), "GC1 [Algèbre]");
    EXPECT_FALSE(cell().isUnknown);
}

TEST_F(Occupancy, isUnknownWhenNothingIsLeftOfItsText)
{
    test::Meeting& meeting = rows.emplois("A1", "Lundi1");
    meeting.without("newnature");
    EXPECT_EQ(lookUp(), "GC1 Dupont [Algèbre]"); // every week is shown
    EXPECT_FALSE(cell().isUnknown);
    view.options.everyWeek = false;
    view.options.showsWeekA = true;
    EXPECT_EQ(lookUp(), "");
    EXPECT_TRUE(cell().isUnknown);
    EXPECT_EQ(rows.unreadable.value().number(), runtime::ErrorNumber::ItemNotFound);
    EXPECT_TRUE(rows.unreadable->text().endsWith(" (newnature)"));
}

TEST_F(Occupancy, isFreeWhereARowSaysSoWhateverElseIsMissing)
{
    rows.emplois("A1", "Lundi1").set("newnature", "20").without("Classe").without("matière");
    view.options.everyWeek = false;
    view.options.showsWeekA = true;
    EXPECT_EQ(lookUp(), "");
    EXPECT_FALSE(cell().isUnknown);
    EXPECT_FALSE(rows.unreadable);
}

TEST_F(Occupancy, isUnknownToTheSubjectFilterWithoutTheSubject)
{
    test::Meeting& meeting = rows.emplois("A1", "Lundi1").without("Enseignant1");
    view.subject = "Optique";
    EXPECT_EQ(lookUp(), ""); // it is algebra
    EXPECT_FALSE(cell().isUnknown);
    meeting.without("matière");
    EXPECT_EQ(lookUp(), "");
    EXPECT_TRUE(cell().isUnknown);
}

TEST_F(Occupancy, countsTheStudentsOfASingleClass)
{
    rows.emplois("A1", "Lundi1");
    rows.students["GC1"] = 35;
    rows.capacities["GC1"] = db::Value(std::int64_t{40});
    lookUp();
    EXPECT_EQ(cell().CellStudents, 35);
    EXPECT_EQ(cell().CellCapacity, 40);
    EXPECT_EQ(cell().CellClasses, "GC1\r\n"); // with a line break behind it
    EXPECT_EQ(cell().CellClassList, "GC1");
}

TEST_F(Occupancy, hasNoStudentsWithoutAClass)
{
    rows.emplois("A1", "Lundi1").null("Classe");
    rows.students[""] = 12;
    lookUp();
    EXPECT_EQ(cell().CellStudents, 0);
    EXPECT_EQ(cell().CellClasses, "\r\n");
    EXPECT_EQ(cell().CellClassList, "");
}

TEST_F(Occupancy, stillShowsTheRoomWhenClassesCannotBeAskedFor)
{
    rows.emplois("A1", "Lundi1");
    rows.classesFail = true;
    EXPECT_EQ(lookUp(), "GC1 Dupont [Algèbre]");
    EXPECT_EQ(cell().CellStudents, 0);
    EXPECT_EQ(cell().CellClassList, "GC1");
}

TEST_F(Occupancy, coversAllRowsWithTheTextOfTheFirst)
{
    rows.emplois("A1", "Lundi1");
    rows.emplois("A2", "Lundi1")
        .set("YSalle", "A1")
        .set("Classe", "GC2")
        .set("Enseignant1", "Martin")
        .set("Debut", "9h00");
    rows.students = {{"GC1", 35}, {"GC2", 30}};
    rows.capacities = {{"GC1", db::Value(std::int64_t{40})}, {"GC2", db::Value(std::int64_t{32})}};
    EXPECT_EQ(lookUp(), "GC1 Dupont [Algèbre]");
    EXPECT_EQ(cell().CellRowCount, 2);
    EXPECT_EQ(cell().CellStart, "8h00");
    EXPECT_EQ(cell().CellClasses, "GC1\tDupont\r\nGC2\tMartin");
    EXPECT_EQ(cell().CellClassList, "GC1\tGC2");
    EXPECT_EQ(cell().CellStudents, 65);
    EXPECT_EQ(cell().CellCapacity, 72);
}

TEST_F(Occupancy, writesTheLinesOfSeveralRowsAsTheOptionsSay)
{
    rows.emplois("A1", "Lundi1").null("Classe");
    rows.emplois("A1", "Lundi1").set("Classe", "GC2").set("Enseignant1", "Martin");
    lookUp();
    EXPECT_EQ(cell().CellClasses, "Dupont\r\nGC2\tMartin");
    view.options.showTeachers = false;
    lookUp();
    EXPECT_EQ(cell().CellClasses, "GC2"); // an empty first line is taken for none
    EXPECT_EQ(cell().CellClassList, "GC2");
    view.options.showClass = false;
    view.options.showTeachers = true;
    lookUp();
    EXPECT_EQ(cell().CellClasses, "Dupont\r\nMartin");
    EXPECT_EQ(cell().CellClassList, "\tGC2");
}

TEST_F(Occupancy, leavesOutASumBeyondSixteenBits)
{
    rows.emplois("A1", "Lundi1");
    rows.emplois("A1", "Lundi1").set("Classe", "GC2");
    rows.emplois("A1", "Lundi1").set("Classe", "GC3");
    rows.students = {{"GC1", 20000}, {"GC2", 20000}, {"GC3", 100}};
    rows.capacities = {{"GC1", db::Value(std::int64_t{50})}, {"GC2", db::Value(std::int64_t{50})}};
    EXPECT_EQ(lookUp(), "GC1 Dupont [Algèbre]");
    EXPECT_EQ(cell().CellStudents, 20100);
    EXPECT_EQ(cell().CellCapacity, 100);
}

TEST_F(Occupancy, countsARowFoundThroughItsThirdRoomWithoutShowingIt)
{
    rows.emplois("A2", "Lundi1").set("YSalleB", "A1").set("Durée", "180");
    rows.students["GC1"] = 35;
    EXPECT_EQ(lookUp(), "");
    EXPECT_EQ(cell().CellRowCount, 1);
    EXPECT_EQ(cell().CellStudents, 35);
    EXPECT_EQ(cell().CellDuration, "180");
}

TEST_F(Occupancy, cutsTheChosenSubjectOutOfTheText)
{
    rows.emplois("A1", "Lundi1");
    filter("Algèbre");
    EXPECT_EQ(lookUp(), "GC1 ");
    EXPECT_EQ(cell().CellText, "GC1 ");
    EXPECT_EQ(cell().CellStart, "8h00");
}

TEST_F(Occupancy, blanksACellOfAnotherSubject)
{
    rows.emplois("A1", "Lundi1");
    rows.emplois("A1", "Lundi1").set("Classe", "GC2");
    rows.students["GC1"] = 35;
    filter("Optique");
    EXPECT_EQ(lookUp(), "");
    EXPECT_EQ(cell().CellText, "");
    EXPECT_EQ(cell().CellRowCount, 1);
    EXPECT_EQ(cell().CellStart, "");
    EXPECT_EQ(cell().CellDuration, "");
    EXPECT_EQ(cell().CellClasses, "");
    EXPECT_EQ(cell().CellStudents, 35); // the other facts stay
    EXPECT_EQ(cell().CellClassList, "GC1\tGC2");
}

TEST_F(Occupancy, searchesTheSubjectWithRegardToCase)
{
    rows.emplois("A1", "Lundi1");
    filter("algèbre");
    EXPECT_EQ(lookUp(), "");
}

TEST_F(Occupancy, searchesTheSubjectInTheWholeText)
{
    rows.emplois("A1", "Lundi1");
    filter("GC");
    EXPECT_EQ(lookUp(), "GC1 ");
    view.options.showSubject = false;
    EXPECT_EQ(lookUp(), "GC1"); // nothing in brackets to cut
}

TEST_F(Occupancy, cutsTheSubjectAtItsFirstClosingBracket)
{
    rows.emplois("A1", "Lundi1").set("matière", "Algèbre [I]");
    filter("Algèbre");
    EXPECT_EQ(lookUp(), "GC1 ]");
}

TEST_F(Occupancy, keepsEveryOccupiedCellForAnEmptySubject)
{
    rows.emplois("A1", "Lundi1");
    filter("");
    EXPECT_EQ(lookUp(1), "GC1 ");
    EXPECT_EQ(lookUp(2), "");
}

TEST_F(Occupancy, filtersNothingWhileTheFilterIsOff)
{
    rows.emplois("A1", "Lundi1");
    EXPECT_EQ(lookUp(), "GC1 Dupont [Algèbre]");
}
