// Clashes of make-ups and exams.

#include "answers/ClashDraft.h"
#include "answers/Clashes.h"

#include <gtest/gtest.h>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

/// 18 November 2026 is a Wednesday.
class ClashesOfDates : public testing::Test
{
protected:
    ClashesOfDates() { school.draft().room("R1").room("R2").room("R3"); }

    void makeUp(const QString& room, const QString& className, const QString& teacher = {},
                const QString& date = "2026-11-18", const QString& start = "8h00")
    {
        school.makeUp({.key = "Lundi1",
                       .room = room,
                       .className = className,
                       .teacher = teacher,
                       .start = start,
                       .date = date});
    }
    /// Of the control week, Monday 5 October 2026.
    void exam(const QString& room, const QString& className, const QString& teacher = {})
    {
        school.exam({.key = "Lundi1",
                     .room = room,
                     .className = className,
                     .teacher = teacher,
                     .week = "3"});
    }

    ClashDraft school;
};

} // namespace

TEST_F(ClashesOfDates, areThoseOfAMakeUpWithTheCoursesOfItsWeekday)
{
    makeUp("R1", "L1", "Durand");
    school.course({"Mercredi1", "R1", "L2", "Petit"});
    school.course({"Lundi1", "R1", "L3", "Petit"}); // of the day in the make-up's key
    EXPECT_EQ(school.told(), QStringList("4 R1 2026-11-18 * L1+L2"));
}

TEST_F(ClashesOfDates, areThoseWithCoursesOfEitherWeek)
{
    makeUp("R1", "L1", "Durand");
    school.course({.key = "Mercredi1", .room = "R1", .className = "L2", .nature = "10/20"});
    makeUp("R2", "L1", "Durand", "2026-11-19");
    school.course({.key = "Jeudi1", .room = {}, .className = "L2", .roomB = "R2"});
    EXPECT_EQ(school.told(), QStringList({"4 R1 2026-11-18 A L1+L2", "4 R2 2026-11-19 B L1+L2"}));
}

TEST_F(ClashesOfDates, withCoursesAreThoseOfThePeriod)
{
    school.course({"Lundi1", "R1", "L1", "Durand"});
    school.course({"Vendredi1", "R1", "L1", "Durand"});
    makeUp("R1", "L2", "Petit", "2026-09-07"); // its first day, a Monday
    makeUp("R1", "L2", "Petit", "2026-12-18"); // its last, a Friday
    makeUp("R1", "L2", "Petit", "2026-08-31");
    makeUp("R1", "L2", "Petit", "2026-12-25");
    EXPECT_EQ(school.told(), QStringList({"4 R1 2026-09-07 * L1+L2", "4 R1 2026-12-18 * L1+L2"}));
}

TEST_F(ClashesOfDates, withOtherMakeUpsAreThoseOfTheDateWithinThePeriodOrNot)
{
    makeUp("R1", "L1", "Durand", "2027-02-01");
    makeUp("R1", "L2", "Petit", "2027-02-01");
    makeUp("R1", "L3", "Roux", "2027-02-02");
    EXPECT_EQ(school.told(), QStringList("4 R1 2027-02-01 * L1+L2"));
}

TEST_F(ClashesOfDates, areThoseOfAMakeUpWithTeacherAndClass)
{
    makeUp("R1", "L1", "Durand");
    school.course({"Mercredi1", "R2", "L2", "Durand"});
    school.course({"Mercredi1", "R3", "L1", "Petit"});
    EXPECT_EQ(school.told(),
              QStringList({"5 Durand 2026-11-18 * L1+L2", "6 L1 2026-11-18 * L1+L1"}));
}

TEST_F(ClashesOfDates, areNoneOverRoomAndClassOfOneCommonCourse)
{
    makeUp("R1", "L1", "Durand");
    school.course({"Mercredi1", "R1", "L1", "Durand"}); // no subject either
    school.course({"Mercredi1", "R1", "L2", "Durand"});
    EXPECT_EQ(school.told(), QStringList());
}

TEST_F(ClashesOfDates, overATeacherKnowNoCommonCourse)
{
    makeUp("R1", "L1", "Durand");
    school.course({"Mercredi1", "R2", "L2", "Durand"});
    EXPECT_EQ(school.told(), QStringList("5 Durand 2026-11-18 * L1+L2"));
}

TEST_F(ClashesOfDates, doNotTellOfCoursesAmongThemselvesAgain)
{
    makeUp("R1", "L1", "Durand", "2026-11-18", "9h00"); // to 10h30
    school.course({"Mercredi1", "R1", "L2", "Petit", {}, "8h00", "90"});
    school.course({"Mercredi1", "R1", "L3", "Roux", {}, "8h00", "30"}); // with L2 alone
    EXPECT_EQ(school.told(), QStringList({"0 R1 2 * L3+L2", "4 R1 2026-11-18 * L2+L1"}));
}

TEST_F(ClashesOfDates, areThoseOfAMakeUpWithExams)
{
    makeUp("R1", "L1", "Durand", "2026-10-05");
    exam("R1", "L2", "Petit");
    EXPECT_EQ(school.told(), QStringList("4 R1 2026-10-05 * L1+L2"));
}

TEST_F(ClashesOfDates, areThoseOfExamsWithExams)
{
    exam("R1", "L1", "Durand");
    exam("R1", "L2", "Petit");
    exam("R2", "L2", "Durand");
    EXPECT_EQ(school.told(), QStringList({"0 R1 2026-10-05 * L1+L2", "1 Durand 2026-10-05 * L1+L2",
                                          "2 L2 2026-10-05 * L2+L2"}));
}

TEST_F(ClashesOfDates, areNoneOfAnExamWithACourse)
{
    exam("R1", "L1", "Durand");
    school.course({"Lundi1", "R1", "L1", "Petit"});
    school.course({"Lundi1", "R2", "L2", "Durand"});
    EXPECT_EQ(school.told(), QStringList());
}

TEST_F(ClashesOfDates, joinExamsThroughAMakeUpButNotAmongThemselves)
{
    makeUp("R1", "L1", "Durand", "2026-10-05");
    exam("R1", "L2", "Petit");
    exam("R1", "L3", "Petit"); // one common exam with L2
    EXPECT_EQ(school.told(), QStringList("4 R1 2026-10-05 * L1+L2+L3"));
}

TEST_F(ClashesOfDates, comeAfterThoseOfTheTeachingWeeksByDate)
{
    exam("R1", "L1", "Durand");
    exam("R1", "L2", "Petit");
    school.course({"Samedi1", "R2", "L3", "Roux"});
    school.course({"Samedi1", "R2", "L4", "Noir"});
    EXPECT_EQ(school.told(), QStringList({"0 R2 5 * L3+L4", "0 R1 2026-10-05 * L1+L2"}));
}

TEST_F(ClashesOfDates, haveTheDateOfASunday)
{
    makeUp("R1", "L1", "Durand", "2026-11-22");
    makeUp("R1", "L2", "Petit", "2026-11-22");
    const std::vector<Clash> found = school.clashes();
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].day, kSunday);
}

TEST_F(ClashesOfDates, areNoneOfAMakeUpWithoutADate)
{
    makeUp("R1", "L1", "Durand", "bientôt");
    makeUp("R1", "L2", "Petit", "bientôt");
    EXPECT_EQ(school.told(), QStringList());
}
