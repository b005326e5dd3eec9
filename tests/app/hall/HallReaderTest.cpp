#include "app/hall/HallReader.h"

#include "app/hall/HallDesk.h"
#include "support/TinyFaculty.h"

using namespace test;

namespace
{

const QDate kMakeUpMonday(2025, 3, 17); // with a make-up in A2
const QDate kTuesday(2025, 3, 18);
const QDate kSundayAfter(2025, 3, 23);

class HallReader : public OnBothDatabases
{
protected:
    void SetUp() override { createTinyFaculty(database()); }

    [[nodiscard]] app::HallPlan read(QDate day, int rooms = 18,
                                     const shell::CommandLine& choices = {}) const
    {
        return hallReader(setup, choices).read(hallTime(day, 9, 0), rooms);
    }

    ProgramSetup setup{database()};
};

TEMPORA_ON_BOTH_DATABASES(HallReader);

} // namespace

TEST_P(HallReader, readsEveryRoomOfTheDayWithItsMakeUps)
{
    const app::HallPlan plan = read(kMakeUpMonday);
    EXPECT_EQ(plan.day, kMakeUpMonday);
    EXPECT_EQ(plan.readAt, hallTime(kMakeUpMonday, 9, 0));
    EXPECT_EQ(plan.establishment, "Faculté Témoin");
    EXPECT_EQ(plan.zone, "");
    EXPECT_EQ(plan.week, timetable::Week::Every);
    ASSERT_EQ(plan.pageCount(), 1);
    EXPECT_EQ(plan.roomCount(), 5);
    EXPECT_EQ(hallRows(plan.pages[0]), QStringList({"A1:", "A2: 1 2r", "B1: 3", "B2: 2", "C1: 1"}));
}

TEST_P(HallReader, readsAnotherDayWhenItHasCome)
{
    app::HallReader reader = hallReader(setup);
    EXPECT_EQ(reader.read(hallTime(kMakeUpMonday, 23, 59), 18).day, kMakeUpMonday);
    const app::HallPlan plan = reader.read(hallTime(kTuesday, 0, 0), 18);
    EXPECT_EQ(plan.day, kTuesday);
    EXPECT_EQ(hallRows(plan.pages[0]), QStringList({"A1:", "A2: 2", "B1:", "B2:", "C1:"}));
}

TEST_P(HallReader, seesWhatHasChangedSinceTheLastReading)
{
    app::HallReader reader = hallReader(setup);
    static_cast<void>(reader.read(hallTime(kTuesday, 9, 0), 18));
    database().execute(QStringList{"delete from emplois where Seance='Mardi2'",
                                   "insert into salle (Nom, Zone, places) values ('D1', 3, 15)"});
    const app::HallPlan plan = reader.read(hallTime(kTuesday, 9, 1), 18);
    EXPECT_EQ(hallRows(plan.pages[0]), QStringList({"A1:", "A2:", "B1:", "B2:", "C1:", "D1:"}));
}

TEST_P(HallReader, findsNothingOnASunday)
{
    const app::HallPlan plan = read(kSundayAfter);
    EXPECT_EQ(plan.day, kSundayAfter);
    EXPECT_EQ(hallRows(plan.pages[0]), QStringList({"A1:", "A2:", "B1:", "B2:", "C1:"}));
}

TEST_P(HallReader, keepsToTheChoicesOfTheCommandLine)
{
    shell::CommandLine choices;
    choices.zone = 2;
    choices.roomsPerPage = 1;
    const app::HallPlan plan = read(kMakeUpMonday, 18, choices);
    EXPECT_EQ(plan.zone, "Zone 2");
    ASSERT_EQ(plan.pageCount(), 2);
    EXPECT_EQ(hallRows(plan.pages[1]), QStringList({"B2: 2"}));
}

TEST_P(HallReader, showsTheWeekThatTheDayLiesIn)
{
    setup.set("SemaineA", "2025-03-10");
    const auto inC1 = [this](QDate day, const shell::CommandLine& choices = {}) {
        const app::HallPlan plan = read(day, 18, choices);
        const plan::PlanRow& row = plan.pages[0].content.rows[4];
        return row.boxes.empty() ? QString() : row.boxes[0].cell.CellText.simplified();
    };
    EXPECT_EQ(read(kMakeUpMonday).week, timetable::Week::B);
    EXPECT_TRUE(inC1(kMakeUpMonday).contains("Blanc")) << inC1(kMakeUpMonday).toStdString();
    EXPECT_FALSE(inC1(kMakeUpMonday).contains("Roux"));
    EXPECT_TRUE(inC1(kMakeUpMonday.addDays(7)).contains("Roux"));
    EXPECT_FALSE(inC1(kMakeUpMonday.addDays(7)).contains("Blanc"));
    shell::CommandLine weekA;
    weekA.week = shell::CommandLine::Week::A;
    EXPECT_TRUE(inC1(kMakeUpMonday, weekA).contains("Roux"));
}

TEST_P(HallReader, savesNothing)
{
    const QString before = setup.settingsText();
    shell::CommandLine choices;
    choices.roomsPerPage = 2;
    choices.show = shell::CommandLine::Shown{true, false, false, false, false};
    static_cast<void>(read(kMakeUpMonday, 18, choices));
    EXPECT_EQ(setup.settingsText(), before);
}

TEST_P(HallReader, tellsNobodyWhoWasAbsent)
{
    // G1 was absent on that Monday at 8h30: the window shows it.
    const app::HallPlan plan = read(kMakeUpMonday);
    const plan::PlanBox& box = plan.pages[0].content.rows[1].boxes[0];
    EXPECT_EQ(box.slot, 1);
    EXPECT_FALSE(box.classAbsent);
    EXPECT_FALSE(box.studentAbsent);
}

TEST_P(HallReader, refusesAPeriodThatIsNone)
{
    shell::CommandLine choices;
    choices.tranche = "Été";
    EXPECT_THROW(static_cast<void>(read(kMakeUpMonday, 18, choices)), shell::UsageError);
}

TEST(HallChoices, areThoseOfTheWindow)
{
    form::PlanForm form;
    form.CbTranche.design({"Printemps", "Automne"}, 1);
    form.cb_Locaux.setListIndex(3);
    form.XpMat.design(true);
    const shell::CommandLine line = app::hallChoicesOf(form);
    EXPECT_EQ(line.tranche, "Automne");
    EXPECT_EQ(line.zone, 3);
    EXPECT_FALSE(line.mode || line.week || line.department);
    EXPECT_TRUE(line.show->subject);
    EXPECT_FALSE(line.show->cls || line.show->teacher);
}
