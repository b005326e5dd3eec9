#include "absences/Marking.h"

#include "MarkedPlan.h"
#include "support/RuntimeMatchers.h"

using namespace test;
using absences::AsyncKeyState;
using absences::VirtualKey;
using runtime::ErrorNumber;

namespace
{

const QString classOne = QStringLiteral("A");
const QString classTwo = QStringLiteral("B");

class AMarker : public OnBothDatabases
{
protected:
    void SetUp() override { createAbsenceTables(database()); }

    /// A plan of one box with these classes.
    [[nodiscard]] MarkedPlan planOf(const QStringList& classes)
    {
        return MarkedPlan(database(), {classes});
    }
    /// Records the class's absence as another program would.
    void recordClass(const QString& className)
    {
        MarkedPlan(database(), {{className}}).shiftClick(1);
    }
    void recordStudents(const QString& className)
    {
        MarkedPlan(database(), {{className}}).ctrlClick(1);
    }
    [[nodiscard]] QStringList absent() { return absentClasses(database()); }
    [[nodiscard]] QStringList withAbsentStudents() { return classesOfAbsentStudents(database()); }
};

} // namespace

TEST_P(AMarker, recordsTheAbsenceOfEveryClassByAShiftClick)
{
    MarkedPlan plan = planOf({classOne, classTwo});
    plan.shiftClick(1);
    EXPECT_EQ(classAbsences(database()),
              QList<QStringList>({classAbsence(classOne), classAbsence(classTwo)}));
    EXPECT_TRUE(plan.box(1).classAbsent);
    EXPECT_FALSE(plan.box(1).studentAbsent);
    EXPECT_TRUE(plan.box(1).absentToolTip.isEmpty());
    EXPECT_TRUE(studentAbsences(database()).isEmpty());
}

TEST_P(AMarker, tellsWhatAClickHasDone)
{
    using What = absences::Toggled::What;
    const QDate day(2025, 3, 17);
    MarkedPlan plan = planOf({classOne, classTwo});
    recordClass(classOne);
    EXPECT_EQ(plan.click(1, pressed, pressed),
              (std::vector<absences::Toggled>{{What::Students, day, {classOne, classTwo}, {}},
                                              {What::Classes, day, {classTwo}, {classOne}}}));
    EXPECT_TRUE(plan.click(1, 0, 0).empty());
}

TEST_P(AMarker, takesTheClassAbsencesBackByASecondShiftClick)
{
    MarkedPlan plan = planOf({classOne, classTwo});
    plan.shiftClick(1);
    plan.shiftClick(1);
    EXPECT_TRUE(classAbsences(database()).isEmpty());
    EXPECT_FALSE(plan.box(1).classAbsent);
}

TEST_P(AMarker, showsWhatTheLastClassCameTo)
{
    recordClass(classOne);
    MarkedPlan plan = planOf({classOne, classTwo});
    EXPECT_TRUE(plan.box(1).classAbsent);
    plan.shiftClick(1);
    EXPECT_EQ(absent(), QStringList{classTwo});
    EXPECT_TRUE(plan.box(1).classAbsent);
    plan.refresh(); // which asks for the first class alone
    EXPECT_FALSE(plan.box(1).classAbsent);
    plan.shiftClick(1);
    EXPECT_EQ(absent(), QStringList{classOne});
    EXPECT_FALSE(plan.box(1).classAbsent);
}

TEST_P(AMarker, recordsTheAbsenceOfStudentsOfEveryClassByACtrlClick)
{
    MarkedPlan plan = planOf({classOne, classTwo});
    plan.ctrlClick(1);
    EXPECT_EQ(studentAbsences(database()),
              QList<QStringList>({studentAbsence(classOne), studentAbsence(classTwo)}));
    EXPECT_TRUE(plan.box(1).studentAbsent);
    EXPECT_EQ(plan.box(1).absentToolTip, QStringLiteral("A\tB Absent"));
    EXPECT_FALSE(plan.box(1).classAbsent);
    EXPECT_TRUE(classAbsences(database()).isEmpty());
}

TEST_P(AMarker, takesTheStudentAbsencesBackByASecondCtrlClick)
{
    MarkedPlan plan = planOf({classOne, classTwo});
    plan.ctrlClick(1);
    plan.ctrlClick(1);
    EXPECT_TRUE(studentAbsences(database()).isEmpty());
    EXPECT_FALSE(plan.box(1).studentAbsent);
    EXPECT_TRUE(plan.box(1).absentToolTip.isEmpty());
}

TEST_P(AMarker, showsWhatTheStudentsOfTheLastClassCameTo)
{
    recordStudents(classTwo);
    MarkedPlan plan = planOf({classOne, classTwo});
    EXPECT_FALSE(plan.box(1).studentAbsent);
    plan.ctrlClick(1);
    EXPECT_EQ(withAbsentStudents(), QStringList{classOne});
    EXPECT_FALSE(plan.box(1).studentAbsent);
    EXPECT_TRUE(plan.box(1).absentToolTip.isEmpty());
    plan.refresh();
    EXPECT_TRUE(plan.box(1).studentAbsent);
    EXPECT_EQ(plan.box(1).absentToolTip, QStringLiteral("A\tB Absent"));
}

TEST_P(AMarker, cutsALongClassNameOnlyInTheIdentity)
{
    const QString name = QStringLiteral("Licence1-Groupe-2345");
    ASSERT_EQ(name.size(), 20);
    planOf({name}).ctrlClick(1);
    EXPECT_EQ(database().read(QStringLiteral("select Classe, Nom, Ident from etud_abs")),
              QList<QStringList>({{name, name, QStringLiteral("Licence1-Groupe")}}));
}

TEST_P(AMarker, togglesBothTablesWithBothKeys)
{
    MarkedPlan plan = planOf({classOne, classTwo});
    plan.click(1, pressed, pressed);
    EXPECT_EQ(absent(), QStringList({classOne, classTwo}));
    EXPECT_EQ(withAbsentStudents(), QStringList({classOne, classTwo}));
    EXPECT_TRUE(plan.box(1).classAbsent);
    EXPECT_TRUE(plan.box(1).studentAbsent);
}

TEST_P(AMarker, togglesTheStudentsFirst)
{
    database().execute(QStringLiteral("drop table abscence"));
    MarkedPlan plan = planOf({classOne});
    EXPECT_EQ(errorNumberOf([&] { plan.click(1, pressed, pressed); }), ErrorNumber::TableMissing);
    EXPECT_EQ(withAbsentStudents(), QStringList{classOne});
}

TEST_P(AMarker, doesNotComeToTheClassesWhenTheStudentsFail)
{
    database().execute(QStringLiteral("drop table etud_abs"));
    MarkedPlan plan = planOf({classOne});
    EXPECT_EQ(errorNumberOf([&] { plan.click(1, pressed, pressed); }), ErrorNumber::TableMissing);
    EXPECT_TRUE(absent().isEmpty());
}

TEST_P(AMarker, doesNothingUnlessAKeyIsDownAndNewlyPressed)
{
    MarkedPlan plan = planOf({classOne});
    const std::int16_t others[] = {0, 1, AsyncKeyState::kDown, -32766, 0x7fff, -1};
    for (const std::int16_t shift : others) {
        for (const std::int16_t ctrl : others) {
            plan.click(1, shift, ctrl);
        }
    }
    EXPECT_TRUE(absent().isEmpty());
    EXPECT_TRUE(withAbsentStudents().isEmpty());
    EXPECT_FALSE(plan.box(1).classAbsent);
    EXPECT_FALSE(plan.box(1).studentAbsent);
}

TEST_P(AMarker, asksForCtrlAndThenForShiftAtEveryClick)
{
    const std::vector<VirtualKey> ctrlThenShift = {VirtualKey::Ctrl, VirtualKey::Shift};
    MarkedPlan plan = planOf({classOne});
    plan.click(1, 0, 0);
    EXPECT_EQ(plan.takeQueries(), ctrlThenShift);
    plan.ctrlClick(1);
    EXPECT_EQ(plan.takeQueries(), ctrlThenShift);
    plan.shiftClick(1);
    EXPECT_EQ(plan.takeQueries(), ctrlThenShift);
}

TEST_P(AMarker, togglesAnEmptyClassBehindATrailingTab)
{
    planOf({classOne, QString()}).click(1, pressed, pressed);
    EXPECT_EQ(absent(), QStringList({QString(), classOne}));
    EXPECT_EQ(withAbsentStudents(), QStringList({QString(), classOne}));
}

TEST_P(AMarker, keepsTheSeanceBeforeAFailingClass)
{
    MarkedPlan plan = planOf({classOne, QStringLiteral("L'2"), classTwo});
    const runtime::RunTimeError error = errorOf([&] { plan.shiftClick(1); });
    EXPECT_EQ(error.number(), ErrorNumber::StatementRefused);
    EXPECT_TRUE(error.activity().contains(QStringLiteral("« L'2 »")));
    EXPECT_EQ(absent(), QStringList{classOne});
}

TEST_P(AMarker, standsForItsOwnBox)
{
    MarkedPlan plan(database(), {{classOne}, {}, {classTwo}});
    plan.shiftClick(2);
    EXPECT_EQ(database().read(QStringLiteral("select Classe, Salle from abscence")),
              QList<QStringList>({{classTwo, QStringLiteral("A103")}}));
    EXPECT_FALSE(plan.box(1).classAbsent);
    EXPECT_TRUE(plan.box(2).classAbsent);
}

TEST_P(AMarker, thatWasNeverGivenToABoxIsOutOfBounds)
{
    MarkedPlan plan = planOf({classOne});
    for (const int index : {-1, 0, 2, 32767}) {
        EXPECT_EQ(errorNumberOf([&] { plan.shiftClick(index); }), ErrorNumber::SubscriptOutOfRange);
        EXPECT_EQ(errorNumberOf([&] { plan.ctrlClick(index); }), ErrorNumber::SubscriptOutOfRange);
        plan.click(index, 0, 0); // which does not come to the record
    }
    EXPECT_TRUE(absent().isEmpty());
    EXPECT_TRUE(withAbsentStudents().isEmpty());
}

TEST_P(AMarker, thatTheLastRefreshDidNotDrawStillStandsForItsSeance)
{
    MarkedPlan plan(database(), {{classOne}, {classTwo}});
    plan.rooms() = {{classOne}, {}};
    plan.refresh();
    ASSERT_EQ(plan.engine().markers().MarkerCount(), 1);
    plan.click(2, pressed, pressed);
    EXPECT_EQ(absent(), QStringList{classTwo});
    EXPECT_EQ(withAbsentStudents(), QStringList{classTwo});
}

TEST_P(AMarker, canBeClickedInTheMiddleOfARefresh)
{
    MarkedPlan plan(database(), {{classOne}, {classTwo}});
    int rows = 0;
    plan.whileYielding = [&] {
        if (++rows == 1) {
            plan.shiftClick(1);
            plan.shiftClick(2); // not drawn yet, known from the refresh before
        }
    };
    plan.refresh();
    EXPECT_EQ(rows, 2);
    EXPECT_EQ(absent(), QStringList({classOne, classTwo}));
    EXPECT_TRUE(plan.box(1).classAbsent);
    EXPECT_TRUE(plan.box(2).classAbsent);
}

TEST_P(AMarker, keepsTheLastOutcomeWhateverARefreshFinds)
{
    MarkedPlan plan = planOf({classOne});
    plan.click(1, pressed, pressed);
    database().execute(
        {QStringLiteral("delete from abscence"), QStringLiteral("delete from etud_abs")});
    plan.refresh();
    EXPECT_TRUE(plan.marker(1).AbsClasse);
    EXPECT_TRUE(plan.marker(1).AbsEtud);
    EXPECT_FALSE(plan.box(1).classAbsent);
    EXPECT_FALSE(plan.box(1).studentAbsent);
}

TEST_P(AMarker, isAboutTheDateShownWhenItsBoxWasDrawn)
{
    MarkedPlan plan = planOf({classOne});
    plan.form().DTPicker1.setValue(QDate(2025, 3, 24));
    plan.shiftClick(1);
    EXPECT_EQ(classAbsences(database()), QList<QStringList>{classAbsence(classOne)});
    plan.refresh();
    EXPECT_FALSE(plan.box(1).classAbsent);
}

TEMPORA_ON_BOTH_DATABASES(AMarker);
