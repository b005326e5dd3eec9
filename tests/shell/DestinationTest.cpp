#include "shell/Destination.h"

#include "shell/Inquiry.h"
#include "shell/ShellDesk.h"

using namespace test;
using engine::Engine;
using timetable::MeetingKind;
using timetable::Week;

namespace
{

/// The plan of the tiny faculty, to be shown something: Wednesday, 19 March 2025.
class TheDestination : public testing::Test
{
protected:
    TheDestination()
    {
        createTinyFaculty(m_database);
        m_desk.emplace(m_database);
        m_desk->start();
    }
    shell::Shell& shell() { return m_desk->shell(); }
    void execute(const QString& statement) { m_database.execute(statement); }
    form::PlanForm& form() { return shell().form(); }
    /// Where the meeting of this room, day and subject is to be seen.
    shell::Destination of(const QString& room, int day, const QString& subject,
                          MeetingKind kind = MeetingKind::Course)
    {
        const shell::Inquiry inquiry(shell());
        const auto& holdings = inquiry.occupancy().holdings();
        for (int index = 0; index < static_cast<int>(holdings.size()); ++index) {
            const timetable::HoldingId id(index);
            const timetable::Holder holder =
                inquiry.occupancy().describe(inquiry.occupancy().holding(id));
            if (holder.rooms.contains(room) && holder.day == day && holder.subject == subject &&
                holder.kind == kind) {
                return shell::Destination::of(inquiry.occupancy(), id);
            }
        }
        ADD_FAILURE() << "there is no such meeting";
        return {};
    }
    /// The text of the box in the room's row; empty without one.
    QString box(const QString& room, int slot)
    {
        for (const plan::PlanRow& row : shell().engine().content().rows) {
            for (const plan::PlanBox& box : row.boxes) {
                if (row.room == room && box.slot == slot) {
                    return box.cell.CellText;
                }
            }
        }
        return {};
    }

private:
    TestDatabase m_database{DatabaseKind::Sqlite};
    std::optional<ShellDesk> m_desk;
};

} // namespace

TEST_F(TheDestination, ofACourseIsItsDay)
{
    const shell::Destination algebra = of("A2", 0, "Algèbre");
    EXPECT_EQ(algebra.slot, 1);
    EXPECT_EQ(shell::travel(shell(), algebra), Engine::RoomLine::Drawn);
    EXPECT_EQ(form().CbJour.listIndex(), 0);
    EXPECT_TRUE(box("A2", 1).contains("Algèbre")) << box("A2", 1).toStdString();
}

TEST_F(TheDestination, thatIsShownAlreadyRedrawsNothing)
{
    const shell::Destination algebra = of("A2", 0, "Algèbre");
    shell::travel(shell(), algebra);
    const std::uint64_t before = shell().engine().refreshCount();
    EXPECT_EQ(shell::travel(shell(), algebra), Engine::RoomLine::Drawn);
    EXPECT_EQ(shell().engine().refreshCount(), before);
}

TEST_F(TheDestination, ofAMakeUpIsItsDate)
{
    const shell::Destination makeUp = of("A2", 0, "Algèbre", MeetingKind::MakeUp);
    EXPECT_EQ(makeUp.date, QDate(2025, 3, 17));
    shell::travel(shell(), makeUp);
    EXPECT_TRUE(form().Check2.isChecked());
    EXPECT_EQ(form().DTPicker1.value(), QDate(2025, 3, 17));
    EXPECT_TRUE(box("A2", 2).contains("Algèbre"));
}

TEST_F(TheDestination, ofAnExamIsItsExamWeek)
{
    const shell::Destination exam = of("A2", 0, "Algèbre", MeetingKind::Exam);
    form().CbJour.setListIndex(3);
    shell::travel(shell(), exam);
    EXPECT_TRUE(form().OpExam().isSelected());
    EXPECT_EQ(form().Combo10.listIndex(), 0);
    EXPECT_EQ(form().CbJour.listIndex(), 0);
    EXPECT_TRUE(box("A2", 1).contains("Algèbre"));
    shell::travel(shell(), of("A2", 1, "Chimie"));
    EXPECT_TRUE(form().OpEns().isSelected());
    EXPECT_TRUE(box("A2", 2).contains("Chimie"));
}

TEST_F(TheDestination, ofAnExamCountsTheDaysOfItsWeekAsTheWindowDoes)
{
    execute("update dat_exam set Semaine1 = '2025-06-05'"); // a Thursday
    const shell::Destination exam = of("A2", 3, "Algèbre", MeetingKind::Exam);
    EXPECT_EQ(exam.date, QDate(2025, 6, 5));
    EXPECT_EQ(exam.day, 0); // "Lundi" is the first day of the exam week
    shell::travel(shell(), exam);
    EXPECT_EQ(form().CbJour.listIndex(), 0);
    EXPECT_TRUE(box("A2", 1).contains("Algèbre"));
}

TEST_F(TheDestination, ofTheOtherWeekChangesTheWeek)
{
    form().OptA().select();
    shell::travel(shell(), of("C1", 0, "Optique"));
    EXPECT_TRUE(form().OptB().isSelected());
    EXPECT_TRUE(box("C1", 1).contains("Optique"));
    shell::travel(shell(), of("A2", 0, "Algèbre")); // of every week
    EXPECT_TRUE(form().OptB().isSelected());
}

TEST_F(TheDestination, outsideTheChosenRoomsShowsThemAll)
{
    form().cb_Locaux.setListIndex(1);
    EXPECT_EQ(shell::travel(shell(), of("C1", 0, "Optique")), Engine::RoomLine::Drawn);
    EXPECT_EQ(form().cb_Locaux.listIndex(), 0);
    EXPECT_TRUE(box("C1", 1).contains("Optique"));
}

TEST_F(TheDestination, ofAnotherSubjectShowsAllSubjects)
{
    form().Check1.setChecked(true);
    ASSERT_TRUE(form().Cb_Mat.selectText("Physique"));
    shell::travel(shell(), of("A2", 0, "Algèbre"));
    EXPECT_FALSE(form().Check1.isChecked());
    EXPECT_TRUE(box("A2", 1).contains("Algèbre"));
}

TEST_F(TheDestination, mayBeARowAlone)
{
    shell::Destination row;
    row.room = "A1";
    EXPECT_EQ(shell::travel(shell(), row), Engine::RoomLine::Greyed);
    row.room = "Z9";
    EXPECT_EQ(shell::travel(shell(), row), Engine::RoomLine::None);
}
