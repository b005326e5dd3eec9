#include "answers/WeekBox.h"

#include "answers/ClashDraft.h"

#include <gtest/gtest.h>

using namespace answers;
using namespace test;
using namespace timetable;

namespace
{

/// A school with the rooms R1 and R2.
class TheBoxes : public testing::Test
{
protected:
    TheBoxes() { school.draft().room("R1").room("R2"); }

    std::vector<WeekBox> boxes(const std::optional<Subject>& subject = {}, QDate date = {})
    {
        const AskedWeek week{Week::Every, date};
        return weekBoxes(school.occupancy(), subject,
                         subject ? weekOf(school.occupancy(), *subject, week)
                                 : weekOfAll(school.occupancy(), week));
    }
    /// The lines of the only box.
    QStringList lines(const std::optional<Subject>& subject)
    {
        const std::vector<WeekBox> found = boxes(subject);
        EXPECT_EQ(found.size(), 1);
        return found.empty() ? QStringList() : found.front().lines;
    }
    /// Each box as "first line lane/lanes".
    QStringList lanes()
    {
        QStringList told;
        for (const WeekBox& box : boxes()) {
            told << QString("%1 %2/%3").arg(box.lines.front()).arg(box.lane).arg(box.lanes);
        }
        return told;
    }
    const Timetable& known() { return school.occupancy().timetable(); }

    ClashDraft school;
};

/// A meeting of class `name` on Monday at its own time.
ClashRow at(const QString& name, const QString& start, const QString& length = "90")
{
    return {"Lundi1", "R1", name, "T" + name, {}, start, length};
}

/// The same every other week, week A or week B.
ClashRow everyOther(const QString& name, const QString& week, const QString& start,
                    const QString& length = "90")
{
    ClashRow row = at(name, start, length);
    row.nature = "10/20";
    if (week == "B") {
        std::swap(row.room, row.roomB);
    }
    return row;
}

} // namespace

TEST_F(TheBoxes, tellAllButWhoseWeekItIs)
{
    school.course({"Lundi1", "R1", "L1", "Durand", "Algèbre"});
    EXPECT_EQ(lines({}), QStringList({"L1", "Algèbre", "Durand", "R1"}));
    EXPECT_EQ(lines(RoomId(0)), QStringList({"L1", "Algèbre", "Durand"}));
    EXPECT_EQ(lines(known().teachers().find(u"Durand")), QStringList({"L1", "Algèbre", "R1"}));
    EXPECT_EQ(lines(known().classes().find(u"L1")), QStringList({"Algèbre", "Durand", "R1"}));
    EXPECT_EQ(lines(known().subjects().find(u"Algèbre")), QStringList({"L1", "Durand", "R1"}));
}

TEST_F(TheBoxes, haveNoLineForWhatTheirRowsDoNotSay)
{
    school.course({"Lundi1", "R1", "L1"});
    EXPECT_EQ(lines(RoomId(0)), QStringList("L1"));
    EXPECT_EQ(lines(known().classes().find(u"L1")), QStringList("R1"));
}

TEST_F(TheBoxes, tellOfTheOtherRoomAndTheOtherTeacher)
{
    ClashRow row{"Lundi1", "R1", "L1", "Durand"};
    row.yRoom = "R2";
    row.secondTeacher = "Petit";
    school.course(row);
    EXPECT_EQ(lines(RoomId(0)), QStringList({"L1", "Durand, Petit", "R2"}));
    EXPECT_EQ(lines(RoomId(1)), QStringList({"L1", "Durand, Petit", "R1"}));
    EXPECT_EQ(lines(known().teachers().find(u"Petit")), QStringList({"L1", "Durand", "R1, R2"}));
}

TEST_F(TheBoxes, areOneForSeveralClassesOfOneCourse)
{
    school.course({"Lundi1", "R1", "L1", "Durand", "Algèbre"});
    school.course({"Lundi1", "R1", "L2", "Durand", "Algèbre"});
    const std::vector<WeekBox> found = boxes(RoomId(0));
    ASSERT_EQ(found.size(), 1);
    EXPECT_EQ(found[0].holdings, (std::vector{HoldingId(0), HoldingId(1)}));
    EXPECT_EQ(found[0].lines, QStringList({"L1, L2", "Algèbre", "Durand"}));
    EXPECT_EQ(found[0].time, (TimeSpan{{8 * 60}, {90}}));
    EXPECT_EQ(found[0].lanes, 1);
}

TEST_F(TheBoxes, haveAShortTextForPlacesWithoutRoom)
{
    school.course({"Lundi1", "R1", {}, "Durand", "Algèbre"});
    EXPECT_EQ(boxes()[0].shortText, "Algèbre");
    ClashDraft other;
    other.draft().room("R1");
    for (const char* name : {"L1", "L2", "L2", "L3"}) {
        other.course({"Lundi1", "R1", name});
    }
    const std::vector<HoldingId> items = weekOfAll(other.occupancy(), {});
    EXPECT_EQ(weekBoxes(other.occupancy(), {}, items)[0].shortText, "L1 +2");
    EXPECT_EQ(weekBoxes(other.occupancy(), {}, {items[0]})[0].shortText, "L1");
}

TEST_F(TheBoxes, areTwoWhereAnythingElseDiffers)
{
    const ClashRow first{"Lundi1", "R1", "L1", "Durand", "Algèbre"};
    std::vector<ClashRow> others(6, {"Lundi1", "R1", "L2", "Durand", "Algèbre"});
    others[0].key = "Mardi1";
    others[1].room = "R2";
    others[2].teacher = "Petit";
    others[3].subject = "Chimie";
    others[4].length = "60";
    others[5].nature = "10/20";
    for (const ClashRow& other : others) {
        ClashDraft pair;
        pair.draft().room("R1").room("R2");
        pair.course(first);
        pair.course(other);
        EXPECT_EQ(weekBoxes(pair.occupancy(), {}, weekOfAll(pair.occupancy(), {})).size(), 2)
            << &other - others.data();
    }
}

TEST_F(TheBoxes, haveTheColourOfTheRoomWhoseWeekItIsOrElseOfTheirFirst)
{
    ClashRow row{"Lundi1", "R2", "L1"};
    row.yRoom = "R1";
    school.course(row);
    EXPECT_EQ(boxes()[0].room, RoomId(1));
    EXPECT_EQ(boxes(RoomId(0))[0].room, RoomId(0));
}

TEST_F(TheBoxes, comeByDayAndStart)
{
    school.course({"Mardi1", "R1", "C"});
    school.course(at("B", "10h00"));
    school.course(at("A", "8h00"));
    EXPECT_EQ(lanes(), QStringList({"A 0/1", "B 0/1", "C 0/1"}));
    EXPECT_EQ(boxes()[2].day, 1);
}

TEST_F(TheBoxes, shareTheWidthWhereTheyOverlap)
{
    school.course(at("A", "8h00", "120")); // to 10h00
    school.course(at("B", "9h00", "120")); // to 11h00
    school.course(at("C", "10h00", "30")); // after A, beside B
    school.course(at("D", "11h00"));       // after all of them
    EXPECT_EQ(lanes(), QStringList({"A 0/2", "B 1/2", "C 0/2", "D 0/1"}));
}

TEST_F(TheBoxes, ofWeekAStandLeftOfThoseOfWeekB)
{
    school.course(everyOther("B", "B", "8h00"));
    school.course(everyOther("A", "A", "8h00"));
    EXPECT_EQ(lanes(), QStringList({"A 0/2", "B 1/2"}));
    EXPECT_EQ(boxes()[0].corner, "A");
    EXPECT_EQ(boxes()[1].corner, "B");
}

TEST_F(TheBoxes, ofWeekAStandLeftEvenWhenTheyBeginLater)
{
    school.course(everyOther("B", "B", "8h00", "180"));
    school.course(everyOther("A", "A", "9h00", "60"));
    EXPECT_EQ(lanes(), QStringList({"B 1/2", "A 0/2"}));
}

TEST_F(TheBoxes, ofOneWeekThatOverlapGetLanesOfTheirOwn)
{
    school.course(everyOther("A", "A", "8h00"));
    school.course(everyOther("Z", "A", "8h00"));
    school.course(everyOther("B", "B", "8h00"));
    EXPECT_EQ(lanes(), QStringList({"A 0/3", "Z 1/3", "B 2/3"}));
}

TEST_F(TheBoxes, leaveOutWhatHasNoKnownTime)
{
    school.course({"Lundi9", "R1", "L1"});
    EXPECT_TRUE(boxes().empty());
}

TEST_F(TheBoxes, tellKindsOnDates)
{
    school.draft().slot("Mardi1", "8h00", "9h30");
    ClashRow row{"Lundi1", "R1", "L1"};
    row.date = "2026-11-24"; // a Tuesday
    school.makeUp(row);
    row.week = "3"; // from 5 October 2026
    school.exam(row);
    const std::vector<WeekBox> madeUp = boxes({}, QDate(2026, 11, 23));
    ASSERT_EQ(madeUp.size(), 1);
    EXPECT_EQ(madeUp[0].kind, MeetingKind::MakeUp);
    EXPECT_EQ(madeUp[0].day, 1);
    EXPECT_EQ(madeUp[0].corner, QString());
    const std::vector<WeekBox> exams = boxes({}, QDate(2026, 10, 9));
    ASSERT_EQ(exams.size(), 1);
    EXPECT_EQ(exams[0].kind, MeetingKind::Exam);
    EXPECT_EQ(exams[0].day, 0);
}

TEST(TheWordsOfABox, tellWhenAndWhat)
{
    WeekBox box;
    box.time = {{9 * 60 + 30}, {90}};
    EXPECT_EQ(boxWords(box, "Lundi"), "Lundi 9h30–11h00");
    box.corner = "A";
    box.kind = MeetingKind::MakeUp;
    box.lines = QStringList{"L1, L2", "Algèbre"};
    EXPECT_EQ(boxWords(box, "Lundi 23/11"),
              "Lundi 23/11 9h30–11h00, semaine A, rattrapage : L1, L2, Algèbre");
}
