#include "absences/Marking.h"

#include "MarkedPlan.h"
#include "support/RuntimeMatchers.h"

using namespace test;
using absences::AsyncKeyState;
using absences::VirtualKey;
using runtime::ErrorNumber;

namespace
{

const QString classA = QStringLiteral("A");
const QString classB = QStringLiteral("B");
constexpr std::int16_t pressed = AsyncKeyState::kDownAndPressed;

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
    MarkedPlan plan = planOf({classA, classB});
    plan.shiftClick(1);
    EXPECT_EQ(classAbsences(database()),
              QList<QStringList>({classAbsence(classA), classAbsence(classB)}));
    EXPECT_TRUE(plan.box(1).classAbsent);
    EXPECT_FALSE(plan.box(1).studentAbsent);
    EXPECT_TRUE(plan.box(1).absentToolTip.isEmpty());
    EXPECT_TRUE(studentAbsences(database()).isEmpty());
}

TEST_P(AMarker, tellsWhatAClickHasDone)
{
    using What = absences::Toggled::What;
    const QDate day(2025, 3, 17);
    MarkedPlan plan = planOf({classA, classB});
    recordClass(classA);
    EXPECT_EQ(plan.click(1, pressed, pressed),
              (std::vector<absences::Toggled>{{What::Students, day, {classA, classB}, {}},
                                              {What::Classes, day, {classB}, {classA}}}));
    EXPECT_TRUE(plan.click(1, 0, 0).empty());
}

TEST_P(AMarker, takesTheClassAbsencesBackByASecondShiftClick)
{
    MarkedPlan plan = planOf({classA, classB});
    plan.shiftClick(1);
    plan.shiftClick(1);
    EXPECT_TRUE(classAbsences(database()).isEmpty());
    EXPECT_FALSE(plan.box(1).classAbsent);
}

TEST_P(AMarker, showsWhatTheLastClassCameTo)
{
    recordClass(classA);
    MarkedPlan plan = planOf({classA, classB});
    EXPECT_TRUE(plan.box(1).classAbsent);
    plan.shiftClick(1);
    EXPECT_EQ(absent(), QStringList{classB});
    EXPECT_TRUE(plan.box(1).classAbsent);
    plan.refresh(); // which asks for the first class alone
    EXPECT_FALSE(plan.box(1).classAbsent);
    plan.shiftClick(1);
    EXPECT_EQ(absent(), QStringList{classA});
    EXPECT_FALSE(plan.box(1).classAbsent);
}

TEST_P(AMarker, recordsTheAbsenceOfStudentsOfEveryClassByACtrlClick)
{
    MarkedPlan plan = planOf({classA, classB});
    plan.ctrlClick(1);
    EXPECT_EQ(studentAbsences(database()),
              QList<QStringList>({studentAbsence(classA), studentAbsence(classB)}));
    EXPECT_TRUE(plan.box(1).studentAbsent);
    EXPECT_EQ(plan.box(1).absentToolTip, QStringLiteral("A\tB Absent"));
    EXPECT_FALSE(plan.box(1).classAbsent);
    EXPECT_TRUE(classAbsences(database()).isEmpty());
}

TEST_P(AMarker, takesTheStudentAbsencesBackByASecondCtrlClick)
{
    MarkedPlan plan = planOf({classA, classB});
    plan.ctrlClick(1);
    plan.ctrlClick(1);
    EXPECT_TRUE(studentAbsences(database()).isEmpty());
    EXPECT_FALSE(plan.box(1).studentAbsent);
    EXPECT_TRUE(plan.box(1).absentToolTip.isEmpty());
}

TEST_P(AMarker, showsWhatTheStudentsOfTheLastClassCameTo)
{
    recordStudents(classB);
    MarkedPlan plan = planOf({classA, classB});
    EXPECT_FALSE(plan.box(1).studentAbsent);
    plan.ctrlClick(1);
    EXPECT_EQ(withAbsentStudents(), QStringList{classA});
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
    MarkedPlan plan = planOf({classA, classB});
    plan.click(1, pressed, pressed);
    EXPECT_EQ(absent(), QStringList({classA, classB}));
    EXPECT_EQ(withAbsentStudents(), QStringList({classA, classB}));
    EXPECT_TRUE(plan.box(1).classAbsent);
    EXPECT_TRUE(plan.box(1).studentAbsent);
}

TEST_P(AMarker, togglesTheStudentsFirst)
{
    database().execute(QStringLiteral("drop table abscence"));
    MarkedPlan plan = planOf({classA});
    EXPECT_EQ(errorNumberOf([&] { plan.click(1, pressed, pressed); }), ErrorNumber::TableMissing);
    EXPECT_EQ(withAbsentStudents(), QStringList{classA});
}

TEST_P(AMarker, doesNotComeToTheClassesWhenTheStudentsFail)
{
    database().execute(QStringLiteral("drop table etud_abs"));
    MarkedPlan plan = planOf({classA});
    EXPECT_EQ(errorNumberOf([&] { plan.click(1, pressed, pressed); }), ErrorNumber::TableMissing);
    EXPECT_TRUE(absent().isEmpty());
}

TEST_P(AMarker, doesNothingUnlessAKeyIsDownAndNewlyPressed)
{
    MarkedPlan plan = planOf({classA});
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
    MarkedPlan plan = planOf({classA});
    plan.click(1, 0, 0);
    EXPECT_EQ(plan.takeQueries(), ctrlThenShift);
    plan.ctrlClick(1);
    EXPECT_EQ(plan.takeQueries(), ctrlThenShift);
    plan.shiftClick(1);
    EXPECT_EQ(plan.takeQueries(), ctrlThenShift);
}

TEST_P(AMarker, togglesAnEmptyClassBehindATrailingTab)
{
    planOf({classA, QString()}).click(1, pressed, pressed);
    EXPECT_EQ(absent(), QStringList({QString(), classA}));
    EXPECT_EQ(withAbsentStudents(), QStringList({QString(), classA}));
}

TEST_P(AMarker, keepsTheSeanceBeforeAFailingClass)
{
    MarkedPlan plan = planOf({classA, QStringLiteral("L'2"), classB});
    const runtime::RunTimeError error = errorOf([&] { plan.shiftClick(1); });
    EXPECT_EQ(error.number(), ErrorNumber::StatementRefused);
    EXPECT_TRUE(error.activity().contains(QStringLiteral("« L'2 »")));
    EXPECT_EQ(absent(), QStringList{classA});
}

TEST_P(AMarker, standsForItsOwnBox)
{
    MarkedPlan plan(database(), {{classA}, {}, {classB}});
    plan.shiftClick(2);
    EXPECT_EQ(database().read(QStringLiteral("select Classe, Salle from abscence")),
              QList<QStringList>({{classB, QStringLiteral("A103")}}));
    EXPECT_FALSE(plan.box(1).classAbsent);
    EXPECT_TRUE(plan.box(2).classAbsent);
}

TEST_P(AMarker, thatWasNeverGivenToABoxIsOutOfBounds)
{
    MarkedPlan plan = planOf({classA});
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
    MarkedPlan plan(database(), {{classA}, {classB}});
    plan.rooms() = {{classA}, {}};
    plan.refresh();
    ASSERT_EQ(plan.engine().markers().MarkerCount(), 1);
    plan.click(2, pressed, pressed);
    EXPECT_EQ(absent(), QStringList{classB});
    EXPECT_EQ(withAbsentStudents(), QStringList{classB});
}

TEST_P(AMarker, canBeClickedInTheMiddleOfARefresh)
{
    MarkedPlan plan(database(), {{classA}, {classB}});
    int rows = 0;
    plan.whileYielding = [&] {
        if (++rows == 1) {
            plan.shiftClick(1);
            plan.shiftClick(2); // not drawn yet, known from the refresh before
        }
    };
    plan.refresh();
    EXPECT_EQ(rows, 2);
    EXPECT_EQ(absent(), QStringList({classA, classB}));
    EXPECT_TRUE(plan.box(1).classAbsent);
    EXPECT_TRUE(plan.box(2).classAbsent);
}

TEST_P(AMarker, keepsTheLastOutcomeWhateverARefreshFinds)
{
    MarkedPlan plan = planOf({classA});
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
    MarkedPlan plan = planOf({classA});
    plan.form().DTPicker1.setValue(QDate(2025, 3, 24));
    plan.shiftClick(1);
    EXPECT_EQ(classAbsences(database()), QList<QStringList>{classAbsence(classA)});
    plan.refresh();
    EXPECT_FALSE(plan.box(1).classAbsent);
}

TEMPORA_ON_BOTH_DATABASES(AMarker);
