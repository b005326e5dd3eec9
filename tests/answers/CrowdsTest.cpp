// Rooms with fewer places than students.

#include "answers/Crowds.h"

#include "answers/ClashDraft.h"

#include <gtest/gtest.h>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

/// L1 has 20 students, L2 has 25, L3 has 31; R1 has 30 places.
class OverfullRooms : public testing::Test
{
protected:
    OverfullRooms()
    {
        school.draft().room("R1", 30).room("R0", 0);
        school.students("L1", 20);
        school.students("L2", 25);
        school.students("L3", 31);
    }
    /// As "day students/places weeks start-end holders".
    QStringList crowded()
    {
        QStringList told;
        for (const Clash& clash : school.clashes()) {
            if (clash.kind == ClashKind::Overfull) {
                told << QString("%1 %2/%3 %4 %5-%6 %7")
                            .arg(clash.date.isValid() ? clash.date.toString(Qt::ISODate)
                                                      : QString::number(clash.day))
                            .arg(clash.students)
                            .arg(clash.places)
                            .arg(static_cast<int>(clash.weeks))
                            .arg(clash.time->start.value)
                            .arg(clash.time->end().value)
                            .arg(clash.holders.size());
            }
        }
        return told;
    }

    ClashDraft school;
};

} // namespace

TEST_F(OverfullRooms, haveMoreStudentsThanPlaces)
{
    school.course({"Lundi1", "R1", "L3", "Durand"}); // 31 of 30
    school.course({"Lundi2", "R1", "L2", "Durand"});
    EXPECT_EQ(crowded(), QStringList("0 31/30 0 480-570 1"));
}

TEST_F(OverfullRooms, areNotThoseThatAreJustFull)
{
    school.students("L4", 30);
    school.course({"Lundi1", "R1", "L4", "Durand"});
    EXPECT_EQ(crowded(), QStringList());
}

TEST_F(OverfullRooms, addUpAllClassesThatAreThereTogether)
{
    school.course({"Lundi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({"Lundi1", "R1", "L2", "Durand", "Algèbre"});
    EXPECT_EQ(crowded(), QStringList("0 45/30 0 480-570 2"));
}

TEST_F(OverfullRooms, countAClassOnce)
{
    school.course({"Lundi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({"Lundi1", "R1", "L1", "Petit", "Algèbre"});
    EXPECT_EQ(crowded(), QStringList());
}

TEST_F(OverfullRooms, areSoAtOneMoment)
{
    school.course({"Lundi1", "R1", "L1", "Durand", "Algèbre", "8h00", "60"});
    school.course({"Lundi1", "R1", "L2", "Petit", "Algèbre", "9h00", "60"}); // as the others go
    school.course({"Mardi1", "R1", "L1", "Durand", "Algèbre", "8h00", "60"});
    school.course({"Mardi1", "R1", "L2", "Petit", "Algèbre", "8h50", "60"});
    EXPECT_EQ(crowded(), QStringList("1 45/30 0 530-540 2"));
}

TEST_F(OverfullRooms, areSoInOneWeek)
{
    school.course({.key = "Lundi1", .room = "R1", .className = "L1", .nature = "10/20"});
    school.course({.key = "Lundi1", .room = {}, .className = "L2", .roomB = "R1"});
    school.course({.key = "Mardi1", .room = "R1", .className = "L1", .nature = "10/20"});
    school.course({.key = "Mardi1", .room = "R1", .className = "L2"});
    EXPECT_EQ(crowded(), QStringList("1 45/30 1 480-570 2"));
}

TEST_F(OverfullRooms, areToldWithTheMostStudentsOfAJoinedCrowd)
{
    school.students("L4", 10);
    school.course({"Lundi1", "R1", "L1", "Durand", "Algèbre", "8h00", "60"});
    school.course({"Lundi1", "R1", "L2", "Durand", "Algèbre", "8h00", "120"}); // 45, to 9h00
    school.course({"Lundi1", "R1", "L4", "Petit", "Algèbre", "9h30", "60"});   // 35, to 10h00
    school.course({"Lundi1", "R1", "L3", "Petit", "Algèbre", "14h00", "60"});  // 31, apart
    EXPECT_EQ(crowded(), QStringList({"0 45/30 0 480-600 3", "0 31/30 0 840-900 1"}));
}

TEST_F(OverfullRooms, countCoursesMakeUpsAndExamsEachOnTheirOwn)
{
    school.course({"Lundi1", "R1", "L1", "Durand"});
    school.makeUp({.key = "Lundi1", .room = "R1", .className = "L2", .date = "2026-10-05"});
    school.exam({.key = "Lundi1", .room = "R1", .className = "L1", .week = "3"});
    EXPECT_EQ(crowded(), QStringList());
}

TEST_F(OverfullRooms, areThoseOfMakeUpsAndOfExams)
{
    school.makeUp({.key = "Lundi1", .room = "R1", .className = "L3", .date = "2026-10-05"});
    school.exam({.key = "Lundi2", .room = "R1", .className = "L1", .week = "3"});
    school.exam({.key = "Lundi2", .room = "R1", .className = "L2", .week = "3"});
    EXPECT_EQ(crowded(),
              QStringList({"2026-10-05 31/30 0 480-570 1", "2026-10-05 45/30 0 570-660 2"}));
}

TEST_F(OverfullRooms, areNotThoseWithoutPlaces)
{
    school.course({"Lundi1", "R0", "L3", "Durand"});
    school.course({"Lundi1", "Annexe", "L3", "Durand"});
    EXPECT_EQ(crowded(), QStringList());
}

TEST_F(OverfullRooms, areNoneWhereTheStudentsCannotBeRead)
{
    school.draft().builder().sizes().leaveStudentsUnknown();
    school.course({"Lundi1", "R1", "L3", "Durand"});
    EXPECT_EQ(crowded(), QStringList());
}
