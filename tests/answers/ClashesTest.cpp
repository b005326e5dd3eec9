// Clashes of courses over rooms, teachers and classes, what is told of them, and in which order.

#include "answers/Clashes.h"

#include "answers/ClashDraft.h"

#include <gtest/gtest.h>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

class ClashesOfCourses : public testing::Test
{
protected:
    ClashesOfCourses() { school.draft().room("R1").room("R2").room("R3"); }

    ClashDraft school;
};

} // namespace

TEST_F(ClashesOfCourses, areNoneWhereAllKeepApart)
{
    school.course({"Lundi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({"Lundi2", "R1", "L1", "Durand", "Algèbre"}); // begins as the first one ends
    school.course({"Mardi1", "R1", "L2", "Petit", "Chimie"});
    school.course({"Lundi1", "R2", "L2", "Petit", "Chimie"});
    EXPECT_EQ(school.told(), QStringList());
}

TEST_F(ClashesOfCourses, areToldWithPlaceTimeAndHolders)
{
    school.course({"Mardi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({"Mardi2", "R1", "L2", "Petit", "Chimie", "9h00", "60"});
    Clash clash;
    clash.kind = ClashKind::Room;
    clash.name = "R1";
    clash.day = 1;
    clash.holders = {HoldingId(0), HoldingId(1)};
    clash.time = TimeSpan{{540}, {30}};
    EXPECT_EQ(school.clashes(), std::vector{clash});
}

TEST_F(ClashesOfCourses, overARoomNeedAMinuteInCommon)
{
    school.course({"Lundi1", "R1", "L1", "Durand", "Algèbre", "8h00", "61"});
    school.course({"Lundi1", "R1", "L2", "Petit", "Chimie", "9h00", "30"});
    school.course({"Lundi1", "R1", "L3", "Roux", "Chimie", "9h30", "30"});
    EXPECT_EQ(school.told(), QStringList("0 R1 0 * L1+L2"));
}

TEST_F(ClashesOfCourses, overARoomNeedAWeekInCommon)
{
    school.course({.key = "Lundi1", .room = "R1", .className = "L1", .nature = "10/20"});
    school.course({.key = "Lundi1", .room = {}, .className = "L2", .roomB = "R1"});
    EXPECT_EQ(school.told(), QStringList());
}

TEST_F(ClashesOfCourses, haveTheWeeksThatTheirHoldersHaveInCommon)
{
    school.course({"Lundi1", "R1", "L1", "Durand"});
    school.course({.key = "Lundi1", .room = "R1", .className = "L2", .nature = "10/20"});
    school.course({.key = "Mardi1", .room = "R1", .className = "L1", .teacher = "Durand"});
    school.course({.key = "Mardi1", .room = {}, .className = "L2", .roomB = "R1"});
    EXPECT_EQ(school.told(), QStringList({"0 R1 0 A L1+L2", "0 R1 1 B L1+L2"}));
}

TEST_F(ClashesOfCourses, areOneWhereAHolderClashesWithSeveral)
{
    // L2 holds in week A and L3 in week B: they clash with L1 only, in both weeks.
    school.course({"Lundi1", "R1", "L1", "Durand"});
    school.course({.key = "Lundi1", .room = "R1", .className = "L2", .nature = "10/20"});
    school.course({.key = "Lundi1", .room = {}, .className = "L3", .roomB = "R1"});
    EXPECT_EQ(school.told(), QStringList("0 R1 0 * L1+L2+L3"));
}

TEST_F(ClashesOfCourses, lastFromTheFirstMinuteInCommonToTheLast)
{
    school.course({"Lundi1", "R1", "L1", "Durand", {}, "8h00", "90"}); // to 9h30
    school.course({"Lundi1", "R1", "L2", "Petit", {}, "9h00", "90"});  // to 10h30
    school.course({"Lundi1", "R1", "L3", "Roux", {}, "10h00", "15"});
    school.course({"Lundi1", "R1", "L4", "Roux", {}, "12h00", "60"});
    school.course({"Lundi1", "R1", "L5", "Petit", {}, "12h30", "60"});
    const std::vector<Clash> found = school.clashes();
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].time, (TimeSpan{{540}, {75}}));
    EXPECT_EQ(found[1].time, (TimeSpan{{750}, {30}}));
    EXPECT_EQ(school.told(), QStringList({"0 R1 0 * L1+L2+L3", "0 R1 0 * L4+L5"}));
}

TEST_F(ClashesOfCourses, overARoomAreNoneOfOneCommonCourse)
{
    school.course({"Lundi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({"Lundi1", "R1", "L2", "Durand", "Algèbre", {}, "60"}); // ends before
    school.course({"Mardi1", "R1", "L1"}); // without teacher and subject
    school.course({"Mardi1", "R1", "L2"});
    EXPECT_EQ(school.told(), QStringList());
}

TEST_F(ClashesOfCourses, overARoomAreThoseOfRowsThatDifferInStartTeacherOrSubject)
{
    school.course({"Lundi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({"Lundi1", "R1", "L2", "Durand", "Algèbre", "8h05"});
    school.course({"Mardi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({"Mardi1", "R1", "L2", "Petit", "Algèbre"});
    school.course({"Mercredi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({"Mercredi1", "R1", "L2", "Durand", "Analyse"});
    school.course({"Jeudi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({"Jeudi1", "R1", "L2", {}, "Algèbre"});
    EXPECT_EQ(school.told(), QStringList({"0 R1 0 * L1+L2", "0 R1 1 * L1+L2", "0 R1 2 * L1+L2",
                                          "0 R1 3 * L1+L2"}));
}

TEST_F(ClashesOfCourses, ofACommonCourseJoinOnlyThroughSomebodyElse)
{
    school.course({"Lundi1", "R1", "L1", "Durand", "Algèbre", "8h00", "90"});
    school.course({"Lundi1", "R1", "L2", "Durand", "Algèbre", "8h00", "30"});
    school.course({"Lundi1", "R1", "L3", "Petit", "Chimie", "9h00", "60"}); // L2 has gone
    school.course({"Mardi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({"Mardi1", "R1", "L2", "Durand", "Algèbre"});
    school.course({"Mardi1", "R1", "L3", "Petit", "Chimie"});
    EXPECT_EQ(school.told(), QStringList({"0 R1 0 * L1+L3", "0 R1 1 * L1+L2+L3"}));
}

TEST_F(ClashesOfCourses, areNoneOfPartsInOneRoomNorOfOnePartInTwo)
{
    school.course({.key = "Lundi1",
                   .room = "R1",
                   .className = "L1",
                   .teacher = "Durand",
                   .xRoom = "R1",
                   .xTeacher = "Durand"});
    school.course({.key = "Mardi1",
                   .room = "R1",
                   .className = "L1",
                   .teacher = "Durand",
                   .nature = "10/20",
                   .yRoom = "R2"});
    EXPECT_EQ(school.told(), QStringList());
}

TEST_F(ClashesOfCourses, overATeacherAreThoseInTwoRooms)
{
    school.course({"Lundi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({.key = "Lundi1", .room = "R2", .className = "L2", .secondTeacher = "Durand"});
    school.course({"Mardi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({"Mardi1", "R2", "L2", "Durand", "Algèbre"}); // of one common course or not
    EXPECT_EQ(school.told(), QStringList({"1 Durand 0 * L1+L2", "1 Durand 1 * L1+L2"}));
}

TEST_F(ClashesOfCourses, overATeacherAreTheTwoPartsOfARow)
{
    school.course({.key = "Lundi1",
                   .room = "R1",
                   .className = "L1",
                   .teacher = "Durand",
                   .xRoom = "R2",
                   .xTeacher = "Durand"});
    EXPECT_EQ(school.told(), QStringList("1 Durand 0 * L1+L1"));
}

TEST_F(ClashesOfCourses, overATeacherAreNoneWhereARoomIsShared)
{
    school.course({.key = "Lundi1",
                   .room = "R1",
                   .className = "L1",
                   .teacher = "Durand",
                   .subject = "Algèbre",
                   .yRoom = "R2"});
    school.course({"Lundi1", "R2", "L2", "Durand", "Algèbre"});
    EXPECT_EQ(school.told(), QStringList());
}

TEST_F(ClashesOfCourses, ofAlternatingCoursesAreNoneWhereTheirPartsShareARoom)
{
    // R1 in week A and R2 every week, with two classes and once with the same one in two rows.
    ClashRow row{"Lundi1", "R1", "L1", "Durand", "Algèbre"};
    row.nature = "10/20";
    row.yRoom = "R2";
    school.course(row);
    school.course(row);
    row.className = "L2";
    school.course(row);
    EXPECT_EQ(school.told(), QStringList());
}

TEST_F(ClashesOfCourses, ofAlternatingCoursesAreOfTheWeeksInWhichTheirPartsShareNone)
{
    ClashRow row{"Lundi1", "R1", "L1", "Durand", "Algèbre"};
    row.nature = "10/20";
    row.yRoom = "R2"; // in week B there alone
    school.course(row);
    row.nature = "00"; // in R1 every week
    row.yRoom = {};
    school.course(row);
    EXPECT_EQ(school.told(), QStringList({"1 Durand 0 B L1+L1", "2 L1 0 B L1+L1"}));
}

TEST_F(ClashesOfCourses, overATeacherCountRoomsThatTheRoomTableDoesNotKnow)
{
    school.course({"Lundi1", "Annexe", "L1", "Durand"});
    school.course({"Lundi1", "R2", "L2", "Durand"});
    EXPECT_EQ(school.told(), QStringList({"1 Durand 0 * L1+L2", "7 Annexe -1 * L1"}));
}

TEST_F(ClashesOfCourses, overAClassAreThoseOfTwoRows)
{
    school.course({"Lundi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({"Lundi1", "R2", "L1", "Petit", "Chimie"});
    school.course({.key = "Mercredi1", // two groups of one row
                   .room = "R1",
                   .className = "L1",
                   .teacher = "Durand",
                   .xRoom = "R2",
                   .xTeacher = "Petit"});
    EXPECT_EQ(school.told(), QStringList("2 L1 0 * L1+L1"));
}

TEST_F(ClashesOfCourses, overAClassAreNoneOfOneCommonCourseInOneRoom)
{
    school.course({"Lundi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({"Lundi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({.key = "Mardi1", .room = "R1", .className = "L1", .subject = "Algèbre"});
    school.course({.key = "Mardi1", .room = "R2", .className = "L1", .subject = "Algèbre"});
    EXPECT_EQ(school.told(), QStringList("2 L1 1 * L1+L1"));
}

TEST_F(ClashesOfCourses, areNoneOfNobody)
{
    school.course({"Lundi1", "R1"});
    school.course({"Lundi1", "R2", " ", " "});
    school.course({"Lundi1", "", "L1", "Durand"}); // in no room
    school.course({"Lundi1", "R3", "L1", "Durand"});
    EXPECT_EQ(school.told(), QStringList());
}

TEST_F(ClashesOfCourses, countOneNameInAllItsSpellings)
{
    school.course({"Lundi1", "R1", "L1 a", "DURAND", "Algèbre"});
    school.course({"Lundi1", "r1", "L1 A", "Durand", "algèbre"});
    school.course({"Mardi1", "r1", "L2", "DURAND"});
    school.course({"Mardi1", "R2", "L3", "Durand"});
    school.course({"Mercredi1", "R1", "L1 A", "Petit"});
    school.course({"Mercredi1", "R2", "L1 a", "Roux"});
    const Occupancy known(
        std::make_shared<const timetable::Timetable>(school.draft().build(Draft::ignoringCase)));
    const std::vector<Clash> found = clashes(known);
    ASSERT_EQ(found.size(), 2U);
    EXPECT_EQ(found[0].kind, ClashKind::Teacher);
    EXPECT_EQ(found[0].name, "DURAND");
    EXPECT_EQ(found[1].kind, ClashKind::Class);
    EXPECT_EQ(found[1].name, "L1 a");
}

TEST_F(ClashesOfCourses, areToldOnceWhereTheRoomTableHasARoomTwice)
{
    school.draft().room("r1");
    school.course({"Lundi1", "R1", "L1", "Durand"});
    school.course({"Lundi1", "R1", "L2", "Petit"});
    const Occupancy known(
        std::make_shared<const timetable::Timetable>(school.draft().build(Draft::ignoringCase)));
    const std::vector<Clash> found = clashes(known);
    ASSERT_EQ(found.size(), 1U);
    EXPECT_EQ(found[0].name, "R1");
}

TEST_F(ClashesOfCourses, overTwoRoomsOfTheSameHoldersAreTwo)
{
    school.course(
        {.key = "Lundi1", .room = "R1", .className = "L1", .teacher = "Durand", .yRoom = "R2"});
    school.course(
        {.key = "Lundi1", .room = "R1", .className = "L2", .teacher = "Petit", .yRoom = "R2"});
    EXPECT_EQ(school.told(), QStringList({"0 R1 0 * L1+L2", "0 R2 0 * L1+L2"}));
}

TEST_F(ClashesOfCourses, areToldByKindDayTimeAndName)
{
    school.course({"Mardi1", "R1", "L1", "Durand"});
    school.course({"Mardi1", "R1", "L2", "Petit"});
    school.course({"Lundi2", "R1", "L3", "Durand"});
    school.course({"Lundi2", "R1", "L4", "Petit"});
    school.course({"Lundi1", "R2", "L5", "Roux"});
    school.course({"Lundi1", "R2", "L6", "Blanc"});
    school.course({"Lundi1", "R1", "L6", "Roux"});
    school.course({"Lundi1", "R1", "L7", "Noir"});
    EXPECT_EQ(school.told(), QStringList({"0 R1 0 * L6+L7", "0 R2 0 * L5+L6", "0 R1 0 * L3+L4",
                                          "0 R1 1 * L1+L2", "1 Roux 0 * L5+L6", "2 L6 0 * L6+L6"}));
}

TEST_F(ClashesOfCourses, tellOfEachUnknownRoomOnce)
{
    school.course({"Mardi1", "Annexe", "L1", "Durand"});
    school.course({"Lundi2", "Annexe", "L2", "Petit"});
    school.course({"Lundi2", "Annexe", "L3", "Roux"}); // at once with L2
    school.course({.key = "Lundi1", .room = {}, .className = "L4", .roomB = "Grange"});
    school.course({"Stage", "Usine", "L5", "Noir", {}, "8h00"}); // on no day
    EXPECT_EQ(school.told(),
              QStringList({"7 Annexe -1 * L2+L3+L1", "7 Grange -1 B L4", "7 Usine -1 * "}));
}

TEST_F(ClashesOfCourses, tellOfEachRowWithoutATime)
{
    school.course({.key = "Lundi11", .room = "R2", .className = "L1", .xRoom = "R1"}); // no slot
    school.draft().slot("Mardi1", "matin", "9h30");
    school.course({"Mardi1", "R1", "L2"});
    school.course({"Mardi1", "R1", "L3", {}, {}, "8h00"}); // knows by itself
    school.makeUp({.key = "Lundi9", .room = "R3", .className = "L4", .date = "2026-11-18"});
    EXPECT_EQ(school.told(),
              QStringList({"8 R2 0 * L1+L1", "8 R1 1 * L2", "8 R3 2026-11-18 * L4"}));
}

TEST_F(ClashesOfCourses, tellOfEachRowWithoutATimeThatHasNoDayEither)
{
    school.course({.key = "Mradi2",
                   .room = "R2",
                   .className = "L1",
                   .nature = "10/20",
                   .xRoom = "R1",
                   .roomB = "R3"});
    school.course({"Mradi2", "R1", "L2", {}, {}, "8h00"}); // when it begins is known
    school.makeUp(
        {.key = "Lundi1", .room = "R1", .className = "L3", .date = "bientôt"}); // so is this
    school.makeUp({.key = "Lundi9", .room = "R3", .className = "L4", .date = "bientôt"});
    school.exam({.key = "1", .room = "R2", .className = "L5", .week = "1"});
    school.course({"Mradi2", {}, "L6"}); // holds nothing anyway
    school.course({"Mardi9", "R1", "L7"});
    EXPECT_EQ(school.told(),
              QStringList({"8 R1 1 * L7", "8 R2 -1 * L1+L1+L1", "8 R2 -1 * L5", "8 R3 -1 * L4"}));
    const std::vector<Clash> found = school.clashes();
    EXPECT_FALSE(found[0].unplaced);
    EXPECT_EQ(found[1].unplaced, (Unplaced{0, NoDay::CourseKey}));
    EXPECT_EQ(found[1].holders, std::vector<HoldingId>());
}

TEST(ClashesOfAnEmptyPeriod, areNone)
{
    ClashDraft school;
    EXPECT_EQ(school.told(), QStringList());
}
